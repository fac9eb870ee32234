#pragma once

#include <algorithm>
#include <cstdlib>

#include <QImage>

/// Pictures for tests, and how far one is from another.
namespace kalvo::tests {

/// White paper of a size in points, at so many pixels a point.
[[nodiscard]] inline QImage paper(QSize size, double scale = 1) {
    QImage image(size * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    return image;
}

/// How much darker than white a pixel is, of 255.
[[nodiscard]] inline int darkness(const QImage& image, int x, int y) {
    return 255 - qGray(image.pixel(x, y));
}

/// How far the gray values of two pictures of one size are apart, of 255.
struct Difference {
    int largest = 0;
    double mean = 0;
};

[[nodiscard]] inline Difference difference(const QImage& one, const QImage& other) {
    Difference found;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int gray = std::abs(darkness(one, x, y) - darkness(other, x, y));
            found.largest = std::max(found.largest, gray);
            found.mean += gray;
        }
    }
    found.mean /= one.width() * one.height();
    return found;
}

}  // namespace kalvo::tests
