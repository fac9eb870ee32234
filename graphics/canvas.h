#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string_view>
#include <vector>

#include "graphics/color.h"
#include "graphics/geometry.h"

namespace kalvo::graphics {

/// A run of points joined by straight segments; a closed one returns to its first point.
struct Polyline {
    std::vector<Point> points;
    bool closed;
};

/// One or more polylines that are filled or stroked together (non-zero winding).
struct Path {
    std::vector<Polyline> polylines;
};

enum class LineJoin { kMiter, kRound };

/// How a line is drawn: butt caps, miter joins (limit 10) or round ones. `dash` holds the lengths
/// of dashes and gaps in turn, in points; empty for a solid line.
struct Stroke {
    Color color;
    double width;  // points
    std::vector<double> dash{};
    LineJoin join = LineJoin::kMiter;
};

/// A slice of a disc: from the center along `startBearing`, along the arc to `endBearing`, and
/// back. Bearings are compass degrees, clockwise from north (up).
struct Wedge {
    Point center;
    double radius;        // points
    double startBearing;  // degrees
    double endBearing;    // degrees, not smaller than startBearing
};

/// The application's sans-serif at a size in points; `bold` is drawn semibold, `tabular` with
/// digits of one width.
struct TextStyle {
    double size;
    bool bold;
    Color color;
    bool tabular = false;
};

/// Which end of a line of text, or its center, lies at the point where it is drawn.
enum class TextAlignment { kLeft, kCenter, kRight };

/// Many open lines in flat storage: line i holds the points from offsets[i] up to offsets[i + 1],
/// the last one those up to the end. Reused from frame to frame without allocating.
struct LineBatch {
    std::vector<Point> points;
    std::vector<std::size_t> offsets;

    void clear() {
        points.clear();
        offsets.clear();
    }
    /// Starts a line, which takes the points appended from now on.
    void beginLine() { offsets.push_back(points.size()); }

    [[nodiscard]] std::size_t lineCount() const { return offsets.size(); }
    [[nodiscard]] std::span<const Point> line(std::size_t i) const {
        const std::size_t end = i + 1 < offsets.size() ? offsets[i + 1] : points.size();
        return std::span(points).subspan(offsets[i], end - offsets[i]);
    }
};

/// A surface to draw on, all coordinates in points. Drawings are antialiased. Geometry may lie
/// anywhere: an implementation keeps what lies far outside the surface from costing time.
/// `save` and `restore` bracket a change of translation, scale and clip.
class Canvas {
 public:
    virtual ~Canvas() = default;

    virtual void fillPath(const Path& path, const Color& color) = 0;
    virtual void strokePath(const Path& path, const Stroke& stroke) = 0;
    /// Strokes every line of the batch, thin and solid, in one call.
    virtual void strokeLines(const LineBatch& lines, const Color& color, double width) = 0;
    virtual void fillRect(const Rect& rect, const Color& color) = 0;
    virtual void fillRoundedRect(const Rect& rect, double radius, const Color& color) = 0;
    virtual void strokeRoundedRect(const Rect& rect, double radius, const Stroke& stroke) = 0;
    virtual void fillCircle(Point center, double radius, const Color& color) = 0;
    virtual void strokeCircle(Point center, double radius, const Stroke& stroke) = 0;
    virtual void fillWedge(const Wedge& wedge, const Color& color) = 0;
    /// Draws one line of UTF-8 text whose box is centered on `center`.
    virtual void drawText(std::string_view text, Point center, const TextStyle& style) = 0;
    /// Draws one line of UTF-8 text whose baseline runs through `baseline`, at exactly the size
    /// of its style, where `drawText` may round it to the pixels of a display.
    virtual void drawTextLine(std::string_view text,
                              Point baseline,
                              TextAlignment alignment,
                              const TextStyle& style) = 0;
    /// Returns how wide `drawTextLine` draws a text, in points; the same on every surface.
    [[nodiscard]] virtual double textWidth(std::string_view text, const TextStyle& style) const = 0;
    /// Draws the picture in a PNG file, stretched to the rectangle; nothing if it cannot be read.
    virtual void drawPicture(const std::filesystem::path& file, const Rect& rect) = 0;

    virtual void save() = 0;
    virtual void restore() = 0;
    virtual void translate(double dx, double dy) = 0;
    virtual void scale(double factor) = 0;
    virtual void clipRoundedRect(const Rect& rect, double radius) = 0;
};

}  // namespace kalvo::graphics
