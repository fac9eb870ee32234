#include "ui/icons.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <QPainter>

namespace kalvo::ui {
namespace {

/// How many pixels of an image are drawn upon; none if one of them has another color.
int inkOf(const QImage& image, const QColor& color) {
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 0) continue;
            ++pixels;
            // Half-covered pixels are rounded, since they are stored premultiplied.
            const int distance = std::max({std::abs(pixel.red() - color.red()),
                                           std::abs(pixel.green() - color.green()),
                                           std::abs(pixel.blue() - color.blue())});
            if (pixel.alpha() > 200 && distance >= 4) return 0;
        }
    }
    return pixels;
}

TEST(Symbols, AreDrawnInOneColorAtEveryScale) {
    const QColor color(11, 122, 83);
    for (const char* name : {"magnifyingglass", "doc.on.doc", "equal.circle", "info.circle",
                             "wind.snow", "chevron.up.chevron.down", "checkmark",
                             "exclamationmark.triangle", "xmark.circle.fill"}) {
        for (const double scale : {1.0, 1.5, 3.0}) {
            const QPixmap symbol = symbolPixmap(QString::fromUtf8(name), 16, color, scale);
            EXPECT_EQ(symbol.width(), static_cast<int>(16 * scale));
            EXPECT_EQ(symbol.devicePixelRatio(), scale);
            EXPECT_GT(inkOf(symbol.toImage(), color), 20 * scale * scale) << name;
        }
    }
    QImage icon(16, 16, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setPen(Qt::red);
    symbolIcon(QStringLiteral("equal.circle")).paint(&painter, 0, 0, 16, 16);
    painter.end();
    EXPECT_GT(inkOf(icon, Qt::red), 10) << "an icon takes the color of the pen";
}

}  // namespace
}  // namespace kalvo::ui
