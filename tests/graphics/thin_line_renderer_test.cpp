#include "graphics/qt/thin_line_renderer.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <QPainterPath>

#include "graphics/qt/qt_canvas.h"
#include "tests/support/pictures.h"

namespace kalvo::graphics {
namespace {

constexpr QSize kSize(120, 90);

/// The lines as the painter itself strokes them.
QImage painted(const LineBatch& lines, double width, double scale, const QTransform& transform) {
    QImage image = tests::paper(kSize, scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(transform);
    QPen pen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
    pen.setMiterLimit(2);
    for (std::size_t i = 0; i < lines.lineCount(); ++i) {
        QPolygonF line;
        for (const Point& point : lines.line(i)) line << QPointF(point.x, point.y);
        QPainterPath path;
        path.addPolygon(line);
        painter.strokePath(path, pen);
    }
    return image;
}

/// The lines as the canvas strokes them.
QImage drawn(const LineBatch& lines, double width, double scale, const QTransform& transform) {
    QImage image = tests::paper(kSize, scale);
    QPainter painter(&image);
    painter.setTransform(transform);
    QtCanvas canvas(painter, {120, 90});
    canvas.strokeLines(lines, kBlack, width);
    return image;
}

/// How far the canvas is from the painter.
tests::Difference deviation(const LineBatch& lines,
                            double width,
                            double scale = 1,
                            const QTransform& transform = {}) {
    return tests::difference(drawn(lines, width, scale, transform),
                             painted(lines, width, scale, transform));
}

/// Rays in all directions, and a wavy line.
LineBatch raysAndWave() {
    LineBatch lines;
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const double angle = degrees * 3.141592653589793 / 180;
        lines.beginLine();
        lines.points.push_back({45 + 12 * std::cos(angle), 42 + 12 * std::sin(angle)});
        lines.points.push_back({45 + 38 * std::cos(angle), 42 + 38 * std::sin(angle)});
    }
    lines.beginLine();
    for (int i = 0; i < 53; ++i) {
        const double y = 5 + 1.5 * i;
        lines.points.push_back({100 + 9 * std::sin(y / 9), y});
    }
    return lines;
}

TEST(ThinLineRendererTest, LooksLikeThePaintersStrokes) {
    const LineBatch lines = raysAndWave();
    for (const double scale : {1.0, 1.5, 2.0}) {
        // Thinner ones the painter draws by a short cut of its own, less exactly.
        for (const double width : {1.2, 1.5}) {
            const QTransform moved = QTransform::fromTranslate(3.3, -2.6).scale(0.9, 0.9);
            for (const QTransform& transform : {QTransform(), moved}) {
                const tests::Difference found = deviation(lines, width, scale, transform);
                EXPECT_LT(found.largest, 50) << "scale " << scale << " width " << width;
                EXPECT_LT(found.mean, 0.8) << "scale " << scale << " width " << width;
            }
        }
    }
}

TEST(ThinLineRendererTest, MitersACornerButNoHairpin) {
    const QImage corner = drawn({{{10, 20}, {20, 20}, {20, 30}}, {0}}, 2, 1, {});
    EXPECT_EQ(tests::darkness(corner, 20, 19), 255);
    EXPECT_EQ(tests::darkness(corner, 21, 18), 0);
    const QImage hairpin = drawn({{{10, 20}, {20, 20}, {10, 20.5}}, {0}}, 1.5, 1, {});
    EXPECT_EQ(tests::darkness(hairpin, 22, 20), 0);
    // Back on the very way it came, where no direction halves the angle.
    const QImage back = drawn({{{10, 20.5}, {20, 20.5}, {12, 20.5}}, {0}}, 1, 1, {});
    EXPECT_EQ(tests::darkness(back, 19, 20), 255);
}

TEST(ThinLineRendererTest, LeavesToThePainterWhatTheMaskCannotDo) {
    LineBatch lines = raysAndWave();
    const QTransform turned = QTransform().rotate(20).scale(0.5, 0.5);
    EXPECT_LT(deviation(lines, 1.2, 1, turned).mean, 0.5);
    EXPECT_LT(deviation(lines, 9).mean, 0.5);
    // Far out of sight, and not a number: the rest stays as it is.
    lines.beginLine();
    lines.points.insert(lines.points.end(), {{60, 45}, {1e300, 45}});
    LineBatch finite = lines;
    finite.points.back() = {200, 45};
    EXPECT_LT(tests::difference(drawn(lines, 1.2, 1, {}), painted(finite, 1.2, 1, {})).mean, 0.5);
    lines.points.back() = {std::numeric_limits<double>::quiet_NaN(), 0};
    finite.points.pop_back();
    finite.points.pop_back();
    finite.offsets.pop_back();
    EXPECT_LT(tests::difference(drawn(lines, 1.2, 1, {}), painted(finite, 1.2, 1, {})).mean, 0.5);
}

TEST(ThinLineRendererTest, DrawsNothingForLinesWithoutLength) {
    for (const LineBatch& lines :
         {LineBatch{}, LineBatch{{}, {0}}, LineBatch{{{50, 50}}, {0}},
          LineBatch{{{50, 50}, {50, 50}, {50, 50}}, {0}}, LineBatch{{{0, 0}, {120, 90}}, {0, 1}}}) {
        EXPECT_EQ(drawn(lines, 1.2, 1, {}), tests::paper(kSize));
    }
}

TEST(ThinLineRendererTest, KeepsColorOpacityAndClip) {
    QImage image = tests::paper(kSize);
    QPainter painter(&image);
    QtCanvas canvas(painter, {120, 90});
    canvas.clipRoundedRect({0, 0, 50, 90}, 0);
    canvas.strokeLines({{{10, 20.5}, {90, 20.5}}, {0}}, {1, 0, 0, 0.5}, 1);
    painter.end();
    EXPECT_NEAR(qRed(image.pixel(30, 20)), 255, 1);
    EXPECT_NEAR(qGreen(image.pixel(30, 20)), 127, 2);
    EXPECT_EQ(image.pixel(70, 20), qRgb(255, 255, 255));
}

}  // namespace
}  // namespace kalvo::graphics
