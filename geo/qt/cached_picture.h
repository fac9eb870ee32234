#pragma once

#include <functional>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <QRectF>

namespace kalvo::geo {

/// The finished picture of a part of a widget, so that what has not changed is only copied to the
/// screen and what has moved is drawn only where it comes into sight. It covers whole device
/// pixels; what it shows is known to its owner.
class CachedPicture {
 public:
    /// Draws a part of the picture, in points; the painter's origin is that of the widget.
    using DrawPart = std::function<void(QPainter&, const QRectF& part)>;

    /// Makes the picture cover an area of the widget, in points, at `scale` device pixels a point.
    /// Returns false if the picture had another place or size and so has lost its content: it is
    /// then `background` throughout.
    [[nodiscard]] bool cover(const QRectF& area, double scale, const QColor& background);

    /// Draws the whole picture. The image has the picture's content; its logical coordinates are
    /// points whose origin is `topLeft`.
    void draw(const std::function<void(QImage&)>& paint);

    /// Moves the content by a distance in points, and draws what comes into sight. Returns false,
    /// having done nothing, if the distance is not a whole number of device pixels or leaves
    /// nothing of the content.
    [[nodiscard]] bool scroll(const QPointF& distance, const DrawPart& drawPart);

    /// Copies the picture to its place in the widget.
    void paint(QPainter& painter) const { painter.drawPixmap(topLeft_, pixmap_); }

    /// Frees the picture's memory.
    void release() { pixmap_ = {}; }

    [[nodiscard]] QPointF topLeft() const { return topLeft_; }  // in the widget, points

 private:
    QPixmap pixmap_;
    QPointF topLeft_;
};

}  // namespace kalvo::geo
