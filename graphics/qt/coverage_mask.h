#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kalvo::graphics {

/// The coverage of each pixel of a picture by thin lines, as 0 to 256 and more: lines that overlap
/// add up. Where two segments of a line meet, each ends at the miter line, which halves their
/// angle: the coverage of one fades there as the other's sets in, which leaves neither a seam nor a
/// knot.
class CoverageMask {
 public:
    static constexpr std::uint16_t kFull = 256;

    /// The widest line, in pixels, and the longest miter, in widths of the line; a sharper corner
    /// gets two butt ends.
    static constexpr float kMaxWidth = 5;
    static constexpr float kMiterLimit = 2;

    struct Vertex {
        float x;  // pixels
        float y;
    };

    /// Empties the mask and gives it so many pixels. Storage is kept from one picture to the next.
    void reset(int width, int height);

    /// Adds an open line with butt ends, `width` pixels wide, at most `kMaxWidth`. Neighboring
    /// vertices differ, and each lies at least `margin(width)` pixels inside the mask, beyond which
    /// no coverage spreads from a vertex. Debug builds assert it.
    void add(std::span<const Vertex> line, float width);
    [[nodiscard]] static float margin(float width) { return kMiterLimit / 2 * width + 2; }

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] std::span<const std::uint16_t> row(int y) const {
        return {coverage_.data() + static_cast<std::size_t>(y) * stride_,
                static_cast<std::size_t>(width_)};
    }

 private:
    /// An end of a segment: its vertex; the normal of the miter line through it, of length 1 (at an
    /// end of the whole line the segment's own direction); and how far coverage spreads beyond the
    /// vertex, in pixels along the segment: to the tip of the miter, and until it has faded.
    struct Joint {
        Vertex at;
        Vertex normal;
        float overhang;
    };
    struct Segment {
        Joint start;
        Joint end;
        Vertex direction;  // of length 1
        float length;
    };
    struct Brush;

    [[nodiscard]] static Segment makeSegment(Vertex from, Vertex to);
    static void join(Segment& one, Segment& next, float halfWidth);
    void add(const Segment& segment, const Brush& brush);

    int width_ = 0;
    int height_ = 0;
    std::size_t stride_ = 0;
    std::vector<std::uint16_t> coverage_;
    std::vector<Segment> segments_;  // of the line that is being added
};

}  // namespace kalvo::graphics
