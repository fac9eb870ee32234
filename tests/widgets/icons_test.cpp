#include "widgets/icons.h"

#include <gtest/gtest.h>
#include <QPainter>

namespace kalvo::widgets {
namespace {

/// How many pixels of an image are drawn upon, and whether all of them have one colour.
struct Ink {
    int pixels = 0;
    bool isOfColor = true;
};

Ink inkOf(const QImage& image, const QColor& color) {
    Ink ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() == 0) continue;
            ++ink.pixels;
            // Half-covered pixels are rounded, since they are stored premultiplied.
            if (pixel.alpha() > 200) {
                ink.isOfColor &= std::abs(pixel.red() - color.red()) < 4 &&
                                 std::abs(pixel.green() - color.green()) < 4 &&
                                 std::abs(pixel.blue() - color.blue()) < 4;
            }
        }
    }
    return ink;
}

class SymbolTest : public testing::TestWithParam<const char*> {};

TEST_P(SymbolTest, IsDrawnInOneColorAtEveryScale) {
    const QColor color(11, 122, 83);
    for (const double scale : {1.0, 1.5, 3.0}) {
        const QPixmap symbol = symbolPixmap(QString::fromUtf8(GetParam()), 16, color, scale);
        EXPECT_EQ(symbol.width(), static_cast<int>(16 * scale));
        EXPECT_EQ(symbol.devicePixelRatio(), scale);
        const Ink ink = inkOf(symbol.toImage(), color);
        EXPECT_GT(ink.pixels, 20 * scale * scale);
        EXPECT_TRUE(ink.isOfColor);
    }
}

INSTANTIATE_TEST_SUITE_P(All,
                         SymbolTest,
                         testing::Values("magnifyingglass",
                                         "doc.on.doc",
                                         "equal.circle",
                                         "info.circle",
                                         "wind.snow",
                                         "chevron.up.chevron.down"));

TEST(SymbolIconTest, TakesTheColorOfThePen) {
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    symbolIcon(QStringLiteral("equal.circle")).paint(&painter, 0, 0, 16, 16);
    painter.end();
    const Ink ink = inkOf(image, Qt::red);
    EXPECT_GT(ink.pixels, 10);
    EXPECT_TRUE(ink.isOfColor);
}

}  // namespace
}  // namespace kalvo::widgets
