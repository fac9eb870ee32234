#include "graphics/qt/stroker.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include <QPainter>

#include "tests/support/pictures.h"

namespace kalvo::graphics {
namespace {

template <class Paint>
QImage picture(Paint paint) {
    QImage image = tests::paper({100, 100});
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    return image;
}

QImage outlined(const ClippedPolyline& line, double width) {
    return picture([&](QPainter& painter) {
        QPainterPath outline;
        outline.setFillRule(Qt::WindingFill);
        appendStroke(line, width, outline);
        painter.fillPath(outline, Qt::black);
    });
}

QImage strokedByQt(const ClippedPolyline& line, double width) {
    return picture([&](QPainter& painter) {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList(line.points.begin(), line.points.end())));
        if (line.closed) path.closeSubpath();
        QPen pen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
        pen.setMiterLimit(10);
        painter.strokePath(path, pen);
    });
}

TEST(StrokerTest, PaintsWhatQPainterStrokes) {
    ClippedPolyline jaggedCoast{{}, true};
    for (int i = 0; i < 300; ++i) {
        const double angle = 2 * 3.14159265 * i / 300;
        const double radius = 30 + 3 * std::sin(40.0 * i) + 2 * std::sin(7.0 * i);
        jaggedCoast.points.emplace_back(50 + radius * std::cos(angle),
                                        50 + radius * std::sin(angle));
    }
    for (const ClippedPolyline& line : std::vector<ClippedPolyline>{
             {{{20, 20}, {80, 20}, {80, 80}, {20, 80}}, true},
             {{{20, 80}, {80, 80}, {80, 20}, {20, 20}, {20, 80}}, true},  // other way, end repeated
             {{{20, 20}, {80, 20}, {30, 60}, {80, 85}}, false},
             {{{20, 50}, {20, 50}, {70, 40}, {70, 40}}, false},
             {{{50, 50}, {53, 50}, {52, 54}}, true},       // smaller than the line is wide
             {{{10, 45.8}, {50, 50}, {10, 54.2}}, false},  // 12 degrees, a miter of 9.6 widths
             {{{20, 20}, {20, 20}}, true},
             jaggedCoast}) {
        for (const double width : {1.5, 3.0, 12.0}) {
            EXPECT_LT(tests::difference(outlined(line, width), strokedByQt(line, width)).mean, 0.5)
                << line.points.size() << " points, " << width << " wide";
        }
    }
}

TEST(StrokerTest, CutsLongerMitersOff) {
    // 9 degrees, a miter of 12.5 widths.
    const QImage sharp = outlined({{{10, 46.8}, {50, 50}, {10, 53.2}}, false}, 4);
    EXPECT_EQ(tests::darkness(sharp, 55, 50), 0);
    const QImage turningBack = outlined({{{20, 50}, {60, 50}, {20, 50}}, false}, 6);
    EXPECT_EQ(tests::darkness(turningBack, 58, 50), 255);
    EXPECT_EQ(tests::darkness(turningBack, 62, 50), 0);
}

}  // namespace
}  // namespace kalvo::graphics
