#pragma once

#include <vector>

#include <QColor>
#include <QPainter>

#include "graphics/canvas.h"
#include "graphics/qt/coverage_mask.h"

namespace kalvo::graphics {

/// Strokes thousands of short thin lines many times faster than `QPainter` strokes them one by
/// one: their cover is gathered in a mask and blended once. Looks like the painter's antialiased
/// strokes with butt caps and miter joins. Kept from picture to picture it reuses its storage.
class ThinLineRenderer {
 public:
    /// Strokes the lines, and returns whether it did. It leaves them to others, having drawn
    /// nothing, where the mask does not serve: the painter does not paint pixels, or it turns or
    /// distorts what it paints; the lines are too thick; a point lies outside the `surface`. That,
    /// like the lines, is in the painter's logical coordinates.
    [[nodiscard]] bool stroke(QPainter& painter,
                              const LineBatch& lines,
                              const QColor& color,
                              double width,
                              const QRectF& surface);

 private:
    /// Blends the mask's lines onto the painter's device, from the pixel `topLeft` on.
    void blend(QPainter& painter, QPoint topLeft, const QColor& color);

    CoverageMask mask_;
    std::vector<CoverageMask::Vertex> vertices_;
    std::vector<QRgb> pixels_;
};

}  // namespace kalvo::graphics
