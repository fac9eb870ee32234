#pragma once

#include <functional>

#include <QImage>
#include <QPainter>

namespace kalvo::graphics {

/// Paints an image in horizontal bands, on this thread and one more at a time. `paint` gets a
/// painter in the image's logical coordinates and the part of it that is wanted; it is called from
/// both threads at once. Worth it for paintings of many milliseconds. No texts: each thread would
/// load their fonts anew.
void paintTiles(QImage& image, const std::function<void(QPainter&, const QRectF& part)>& paint);

}  // namespace kalvo::graphics
