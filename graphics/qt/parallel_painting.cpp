#include "graphics/qt/parallel_painting.h"

#include <atomic>
#include <future>

namespace kalvo::graphics {

void paintTiles(QImage& image, const std::function<void(QPainter&, const QRectF& tile)>& paint) {
    // More tiles than threads, so that a thread done early takes over from a busy one: lines are
    // seldom spread evenly over a picture.
    constexpr int kTiles = 4;
    const double scale = image.devicePixelRatio();
    // Asked for once: `bits` detaches the image, which two threads must not do at a time.
    uchar* const rows = image.bits();
    const auto paintRows = [&](int top, int bottom) {
        if (top == bottom) return;
        QImage tile(rows + top * image.bytesPerLine(), image.width(), bottom - top,
                    image.bytesPerLine(), image.format());
        tile.setDevicePixelRatio(scale);
        QPainter painter(&tile);
        painter.translate(0, -top / scale);
        paint(painter, {0, top / scale, image.width() / scale, (bottom - top) / scale});
    };
    std::atomic<int> next = 0;
    const auto paintRemaining = [&] {
        for (int tile = next++; tile < kTiles; tile = next++) {
            paintRows(image.height() * tile / kTiles, image.height() * (tile + 1) / kTiles);
        }
    };
    // Where no thread can be started the standard library defers the call to `get`, by when no
    // tile is left.
    std::future<void> other = std::async(paintRemaining);
    paintRemaining();
    other.get();
}

}  // namespace kalvo::graphics
