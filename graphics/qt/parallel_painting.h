#pragma once

#include <functional>

#include <QImage>
#include <QPainter>

namespace kalvo::graphics {

/// Paints an image in horizontal tiles, on this thread and one more at a time. `paint` gets a
/// painter in the image's logical coordinates and the tile to fill; both threads call it at once.
/// Pays for paintings of many milliseconds. No texts: each thread would load their fonts anew.
void paintTiles(QImage& image, const std::function<void(QPainter&, const QRectF& tile)>& paint);

}  // namespace kalvo::graphics
