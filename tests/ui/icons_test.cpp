#include "ui/icons.h"

#include <gtest/gtest.h>
#include <QPainter>

namespace kalvo::ui {
namespace {

/// How many pixels of an image have the color; those half covered count as well.
int inkOf(const QImage& image, const QColor& color) {
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            // Rounded, since colors are stored premultiplied.
            pixels += pixel.alpha() > 0 && std::abs(pixel.hue() - color.hue()) < 20;
        }
    }
    return pixels;
}

TEST(SymbolsTest, AreDrawnInOneColorAtEveryScale) {
    for (const char* name : {"magnifyingglass", "doc.on.doc", "equal.circle", "info.circle",
                             "wind.snow", "chevron.up.chevron.down", "checkmark",
                             "exclamationmark.triangle", "xmark.circle.fill"}) {
        for (const double scale : {1.0, 1.5, 3.0}) {
            const QPixmap symbol = symbolPixmap(name, 16, QColor(11, 122, 83), scale);
            EXPECT_EQ(symbol.width(), static_cast<int>(16 * scale));
            EXPECT_GT(inkOf(symbol.toImage(), QColor(11, 122, 83)), 20 * scale * scale) << name;
        }
    }
    QImage icon(16, 16, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setPen(Qt::red);
    symbolIcon("equal.circle").paint(&painter, 0, 0, 16, 16);
    painter.end();
    EXPECT_GT(inkOf(icon, Qt::red), 10) << "an icon takes the color of the pen";
}

}  // namespace
}  // namespace kalvo::ui
