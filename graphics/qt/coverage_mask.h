#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kalvo::graphics {

/// How far each pixel of a picture is covered by thin lines, as 0 to 256 and more: the covers of
/// lines add up. A line's segments are cut where they meet, along the line that halves the angle,
/// so that they leave neither seams nor knots and their outer edges meet in a miter.
class CoverageMask {
 public:
    static constexpr std::uint16_t kFull = 256;

    /// The widest line, in pixels, and the longest miter, in widths of the line; a sharper corner
    /// is cut off.
    static constexpr float kMaxWidth = 5;
    static constexpr float kMiterLimit = 2;

    struct Vertex {
        float x;  // pixels
        float y;
    };

    /// An empty mask of so many pixels. Storage is kept from one picture to the next.
    void reset(int width, int height);

    /// Adds an open line with butt ends. Neighboring vertices differ, and all that the line
    /// covers lies on the mask: nothing reaches farther beyond a vertex than `margin(width)`.
    void add(std::span<const Vertex> line, float width);
    [[nodiscard]] static float margin(float width) { return kMiterLimit / 2 * width + 2; }

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] std::span<const std::uint16_t> row(int y) const {
        return {cover_.data() + static_cast<std::size_t>(y) * stride_,
                static_cast<std::size_t>(width_)};
    }

 private:
    /// An end of a piece: a point of the middle line, the direction that the cut is square to, and
    /// how far the piece reaches beyond the point, to the tip of its miter and until its cover has
    /// faded.
    struct Joint {
        Vertex at;
        Vertex direction;
        float beyond;
    };
    struct Segment {
        Joint start;
        Joint end;
        Vertex direction;  // of length 1
        float length;
    };
    struct Brush;

    [[nodiscard]] static Segment piece(Vertex from, Vertex to);
    static void join(Segment& one, Segment& other, float reach);
    void add(const Segment& piece, const Brush& brush);

    int width_ = 0;
    int height_ = 0;
    std::size_t stride_ = 0;
    std::vector<std::uint16_t> cover_;
    std::vector<Segment> pieces_;  // of the line that is being added
};

}  // namespace kalvo::graphics
