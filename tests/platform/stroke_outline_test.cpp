#include "platform/qt/stroke_outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include <QImage>
#include <QPainter>

namespace kalvo::platform {
namespace {

template <class Paint>
QImage picture(Paint paint) {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    return image;
}

QImage outlined(const VisibleRun& line, double width) {
    return picture([&](QPainter& painter) {
        QPainterPath outline;
        outline.setFillRule(Qt::WindingFill);
        appendStrokeOutline(line, width, outline);
        painter.fillPath(outline, Qt::black);
    });
}

QImage strokedByQt(const VisibleRun& line, double width) {
    return picture([&](QPainter& painter) {
        QPainterPath path;
        path.addPolygon(QPolygonF(QList(line.points.begin(), line.points.end())));
        if (line.closed) path.closeSubpath();
        QPen pen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
        pen.setMiterLimit(10);
        painter.strokePath(path, pen);
    });
}

int darkness(const QImage& image, int x, int y) { return 255 - qGray(image.pixel(x, y)); }

double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            sum += std::abs(darkness(one, x, y) - darkness(other, x, y));
        }
    }
    return sum / 10'000;
}

TEST(StrokeOutline, PaintsWhatQPainterStrokes) {
    VisibleRun jaggedCoast{{}, true};
    for (int i = 0; i < 300; ++i) {
        const double angle = 2 * 3.14159265 * i / 300;
        const double radius = 30 + 3 * std::sin(40.0 * i) + 2 * std::sin(7.0 * i);
        jaggedCoast.points.emplace_back(50 + radius * std::cos(angle),
                                        50 + radius * std::sin(angle));
    }
    for (const VisibleRun& line : std::vector<VisibleRun>{
             {{{20, 20}, {80, 20}, {80, 80}, {20, 80}}, true},
             {{{20, 80}, {80, 80}, {80, 20}, {20, 20}, {20, 80}}, true},  // other way, end repeated
             {{{20, 20}, {80, 20}, {30, 60}, {80, 85}}, false},
             {{{20, 50}, {20, 50}, {70, 40}, {70, 40}}, false},
             {{{50, 50}, {53, 50}, {52, 54}}, true},  // smaller than the line is wide
             jaggedCoast}) {
        for (const double width : {1.5, 3.0, 12.0}) {
            EXPECT_LT(meanDifference(outlined(line, width), strokedByQt(line, width)), 0.5)
                << line.points.size() << " points, " << width << " wide";
        }
    }
}

TEST(StrokeOutline, CutsOffMitersOfMoreThanTenWidths) {
    // The lines meet at 12 and at 9 degrees: miters of 9.6 and of 12.5 widths.
    const auto tip = [](double halfHeight) {
        return outlined({{{10, 50 - halfHeight}, {50, 50}, {10, 50 + halfHeight}}, false}, 4);
    };
    EXPECT_GT(darkness(tip(4.2), 60, 50), 200);
    EXPECT_EQ(darkness(tip(3.2), 55, 50), 0);
}

TEST(StrokeOutline, ALineThatTurnsBackEndsWhereItTurns) {
    const QImage image = outlined({{{20, 50}, {60, 50}, {20, 50}}, false}, 6);
    EXPECT_EQ(darkness(image, 58, 50), 255);
    EXPECT_EQ(darkness(image, 62, 50), 0);
    EXPECT_EQ(darkness(image, 18, 50), 0);
    EXPECT_EQ(darkness(image, 40, 48), 255);
    EXPECT_EQ(darkness(image, 40, 54), 0);
}

TEST(StrokeOutline, NothingIsMadeOfASinglePoint) {
    QPainterPath outline;
    appendStrokeOutline({{{20, 20}, {20, 20}}, true}, 6, outline);
    EXPECT_TRUE(outline.isEmpty());
}

}  // namespace
}  // namespace kalvo::platform
