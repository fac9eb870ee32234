#include "graphics/qt/parallel_painting.h"

#include <atomic>
#include <future>

namespace kalvo::graphics {

void paintTiles(QImage& image, const std::function<void(QPainter&, const QRectF& part)>& paint) {
    // More bands than threads: what is drawn is seldom spread evenly over them.
    constexpr int kBands = 4;
    const double pixels = image.devicePixelRatio();
    uchar* const rows = image.bits();
    const auto paintRows = [&](int top, int bottom) {
        if (top == bottom) return;
        QImage band(rows + top * image.bytesPerLine(), image.width(), bottom - top,
                    image.bytesPerLine(), image.format());
        band.setDevicePixelRatio(pixels);
        QPainter painter(&band);
        painter.translate(0, -top / pixels);
        paint(painter, {0, top / pixels, image.width() / pixels, (bottom - top) / pixels});
    };
    std::atomic<int> next = 0;
    const auto paintBands = [&] {
        for (int band = next++; band < kBands; band = next++) {
            paintRows(image.height() * band / kBands, image.height() * (band + 1) / kBands);
        }
    };
    // Without a thread to be had it finds no band left.
    std::future<void> other = std::async(paintBands);
    paintBands();
    other.get();
}

}  // namespace kalvo::graphics
