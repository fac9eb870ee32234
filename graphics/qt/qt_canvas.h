#pragma once

#include <QFont>
#include <QPainter>

#include "graphics/canvas.h"
#include "graphics/qt/text_layouts.h"
#include "graphics/qt/thin_line_renderer.h"

namespace kalvo::graphics {

/// Returns the font in which a canvas whose painter has the font `base` writes a text.
[[nodiscard]] QFont canvasFont(const QFont& base, const TextStyle& style);

/// What the canvases of a moving picture hand on from one frame to the next.
struct FrameCache {
    ThinLineRenderer thinLines;
    TextLayouts texts;
};

/// A `Canvas` on a `QPainter`, whose logical coordinates are the canvas's points. Geometry is
/// clipped to a little beyond the painter's visible area before it is handed on, because a line
/// that runs to 1e300 would otherwise keep the rasterizer busy for seconds.
class QtCanvas final : public Canvas {
 public:
    /// Draws on the area `size` of the painter; turns antialiasing on. The painter outlives the
    /// canvas. The frames of a moving picture are drawn faster with the same `cache`, which then
    /// outlives the canvas too.
    QtCanvas(QPainter& painter, Size size, FrameCache* cache = nullptr);
    QtCanvas(const QtCanvas&) = delete;
    QtCanvas& operator=(const QtCanvas&) = delete;
    ~QtCanvas() override = default;

    void fillPath(const Path& path, const Color& color) override;
    void strokePath(const Path& path, const Stroke& stroke) override;
    void strokeLines(const LineBatch& lines, const Color& color, double width) override;
    void fillRect(const Rect& rect, const Color& color) override;
    void fillRoundedRect(const Rect& rect, double radius, const Color& color) override;
    void strokeRoundedRect(const Rect& rect, double radius, const Stroke& stroke) override;
    void fillCircle(Point center, double radius, const Color& color) override;
    void strokeCircle(Point center, double radius, const Stroke& stroke) override;
    void fillWedge(const Wedge& wedge, const Color& color) override;
    void drawText(std::string_view text, Point center, const TextStyle& style) override;
    void drawTextLine(std::string_view text,
                      Point baseline,
                      TextAlignment alignment,
                      const TextStyle& style) override;
    [[nodiscard]] double textWidth(std::string_view text, const TextStyle& style) const override;
    void drawPicture(const std::filesystem::path& file, const Rect& rect) override;

    void save() override;
    void restore() override;
    void translate(double dx, double dy) override;
    void scale(double factor) override;
    void clipRoundedRect(const Rect& rect, double radius) override;

 private:
    /// Returns the font of a style, `kFontScale` times as large: Qt's pixel sizes are whole
    /// numbers, and large letters without hinting measure the same for every surface.
    [[nodiscard]] QFont exactFont(const TextStyle& style) const;

    /// Returns the surface in the current coordinates, widened on every side by `margin` points.
    [[nodiscard]] QRectF visibleArea(double margin) const;

    QPainter& painter_;
    Size size_;
    QTransform base_;  // the painter's transformation before the canvas's own
    FrameCache ownCache_;
    FrameCache& cache_;
};

}  // namespace kalvo::graphics
