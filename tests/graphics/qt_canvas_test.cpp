#include "graphics/qt/qt_canvas.h"

#include <chrono>
#include <cmath>
#include <functional>
#include <limits>
#include <tuple>

#include <gtest/gtest.h>
#include <QBitmap>

#include "tests/support/pictures.h"

namespace kalvo::graphics {
namespace {

using tests::darkness;

constexpr Size kSize{100, 80};
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Drawing = std::function<void(Canvas&)>;

/// What a drawing looks like on white paper. `reach` is how far around the view the canvas takes
/// the surface to go: with a large one nothing of an ordinary drawing is cut before painting.
QImage picture(const Drawing& drawing, double reach = 0) {
    QImage image = tests::paper({100, 80});
    QPainter painter(&image);
    painter.translate(-reach, -reach);
    QtCanvas canvas(painter, {kSize.width + 2 * reach, kSize.height + 2 * reach});
    canvas.translate(reach, reach);
    drawing(canvas);
    return image;
}

int largestDifference(const QImage& one, const QImage& other) {
    return tests::difference(one, other).largest;
}

bool isBlank(const QImage& image) {
    return largestDifference(image, picture([](Canvas&) {})) == 0;
}

Drawing stroked(std::vector<Point> points, bool closed, double width = 3) {
    return [=](Canvas& canvas) { canvas.strokePath({{{points, closed}}}, {kBlack, width}); };
}

Drawing filled(std::vector<Point> points) {
    return [=](Canvas& canvas) { canvas.fillPath({{{points, true}}}, kBlack); };
}

TEST(QtCanvasTest, CutsOnlyWhatIsOutOfSight) {
    const std::vector<Point> zigzag{{-300, 40}, {50, 20},  {400, 60}, {60, 70},
                                    {50, -90},  {40, 200}, {30, 40},  {-50, 30}};
    const std::vector<Point> roundACorner{{20, 20}, {160, 20}, {160, 120}, {20, 60}};
    const std::vector<Point> around{{-500, -500}, {600, -400}, {500, 500}, {-700, 600}};
    for (const auto& points : {zigzag, roundACorner, around}) {
        for (const Drawing& drawing :
             {stroked(points, false), stroked(points, true), filled(points)}) {
            EXPECT_LE(largestDifference(picture(drawing), picture(drawing, 2000)), 2);
        }
    }
    const Drawing shapes = [](Canvas& canvas) {
        canvas.fillRect({-50, -20, 80.5, 60.25}, kBlack);
        canvas.fillCircle({110, 90}, 40, kBlack);
        canvas.strokeCircle({-20, 40}, 90, {kBlack, 2});
        canvas.fillWedge({{50, 40}, 300, 80, 95}, kBlack);
    };
    EXPECT_LE(largestDifference(picture(shapes), picture(shapes, 2000)), 2);
}

TEST(QtCanvasTest, EndlessGeometryKeepsItsPixelsAndItsPace) {
    const auto wedge = [](double radius) {
        return [=](Canvas& canvas) { canvas.fillWedge({{50, 40}, radius, 30, 45}, kBlack); };
    };
    const auto bar = [](double top) { return filled({{20, 60}, {20, top}, {50, top}, {50, 60}}); };
    for (const double endless : {1e7, 1e17, 1e300, 1e308, kInfinity}) {
        const auto start = std::chrono::steady_clock::now();
        const struct {
            Drawing endless;
            Drawing ordinary;
        } kCases[] = {
            {stroked({{30, 60}, {35, -endless}}, false), stroked({{30, 60}, {30, -1000}}, false)},
            {bar(-endless), bar(-9)},
            // Down to one end and up from the other: crosses at a hundredth of the way.
            {stroked({{0, std::min(endless, 1e300) / 100}, {40, -std::min(endless, 1e300)}}, false),
             stroked({{40.0 / 101, 1000}, {40.0 / 101, -1000}}, false)},
            {wedge(endless), wedge(500)},
            {[=](Canvas& canvas) {
                 canvas.fillCircle({50, 40}, endless, kBlack);
             },
             [](Canvas& canvas) {
                 canvas.fillRect({0, 0, 100, 80}, kBlack);
             }},
            {[=](Canvas& canvas) {
                 canvas.strokeCircle({50, 40}, endless, {kBlack, 2});
                 canvas.drawText("Roma", {endless, 40}, {8, false, kBlack});
                 canvas.fillRect({endless, 0, 10, 10}, kBlack);
             },
             [](Canvas&) {}},
        };
        for (const auto& [drawing, ordinary] : kCases) {
            EXPECT_LE(largestDifference(picture(drawing), picture(ordinary)), 2) << endless;
        }
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1)) << endless;
    }
}

TEST(QtCanvasTest, LeavesOutWhatIsNoNumber) {
    const double nan = std::nan("");
    EXPECT_TRUE(isBlank(picture([&](Canvas& canvas) {
        canvas.fillRect({10, nan, 20, 20}, kBlack);
        canvas.fillCircle({nan, 40}, 20, kBlack);
        canvas.fillCircle({50, 40}, -3, kBlack);
        canvas.strokeCircle({50, 40}, nan, {kBlack, 2});
        canvas.fillWedge({{50, 40}, nan, 0, 90}, kBlack);
        canvas.fillWedge({{50, 40}, -20, 0, 90}, kBlack);
        canvas.drawText("Roma", {nan, 40}, {8, false, kBlack});
        canvas.strokePath({{{{}, true}, {{{20, 20}}, true}}}, {kBlack, 2});
    })));
    EXPECT_EQ(largestDifference(picture(stroked({{10, 10}, {nan, 40}, {60, 60}}, false)),
                                picture(stroked({{10, 10}, {60, 60}}, false))),
              0);
}

TEST(QtCanvasTest, PaintsTheRightPixels) {
    using Pixel = std::tuple<int, int, int>;  // its column and row, and how dark it is
    const auto expectPixels = [](const Drawing& drawing, const std::vector<Pixel>& pixels) {
        const QImage image = picture(drawing);
        for (const auto& [x, y, dark] : pixels) {
            EXPECT_NEAR(darkness(image, x, y), dark, 2) << x << ", " << y;
        }
    };
    const Drawing rects = [](Canvas& canvas) {
        canvas.fillRect({10, 10.5, 20, 10}, kBlack);
        canvas.fillRect({60, 30, 20, -10}, kBlack);
    };
    expectPixels(rects, {{15, 10, 128}, {15, 11, 255}, {15, 20, 128}, {65, 25, 255}});
    const Drawing dashes = [](Canvas& canvas) {
        canvas.strokePath({{{{{10, 40}, {90, 40}}, false}}}, {kBlack, 4, {6, 2}});
    };
    expectPixels(dashes, {{9, 39, 0}, {10, 39, 255}, {15, 39, 255}, {16, 39, 0}, {18, 39, 255}});
    // Bearings count clockwise from north.
    const Drawing wedge = [](Canvas& canvas) { canvas.fillWedge({{50, 40}, 30, 80, 190}, kBlack); };
    expectPixels(wedge, {{70, 40, 255}, {50, 60, 255}, {50, 20, 0}, {30, 40, 0}, {83, 40, 0}});
    const Drawing clipped = [](Canvas& canvas) {
        canvas.save();
        canvas.translate(50, 40);
        canvas.scale(2);
        canvas.clipRoundedRect({-10, -10, 20, 20}, 6);
        canvas.fillRect({-1000, -1000, 2000, 2000}, kBlack);
        canvas.restore();
        canvas.fillRect({0, 0, 5, 5}, kBlack);
    };
    expectPixels(clipped, {{50, 40, 255}, {50, 21, 255}, {50, 18, 0}, {31, 21, 0}, {2, 2, 255}});
}

TEST(QtCanvasTest, CentersTextOnItsPoint) {
    const auto inkOf = [](bool bold) {
        const QImage image = picture([&](Canvas& canvas) {
            canvas.drawText("HHH", {50, 40}, {20, bold, kBlack});
        });
        const QImage mask = image.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor);
        return QRegion(QBitmap::fromImage(mask)).boundingRect();
    };
    const QRect ink = inkOf(false);
    EXPECT_NEAR(ink.center().x(), 49.5, 1.5);
    EXPECT_NEAR(ink.center().y(), 40, 3);
    EXPECT_GT(ink.height(), 10);
    EXPECT_GT(inkOf(true).width(), ink.width());
}

}  // namespace
}  // namespace kalvo::graphics
