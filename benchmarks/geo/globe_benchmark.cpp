#include <vector>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include "geo/globe_scene.h"
#include "geo/qt/globe_widget.h"
#include "graphics/qt/qt_canvas.h"
#include "tests/geo/reference_globe.h"

/// A frame of the globe as large as on the main screen, and its two shares, each beside the
/// straightforward way of doing it.
namespace {

using namespace kalvo;

constexpr graphics::Size kView{double(geo::reference::kViewSize.width()),
                               double(geo::reference::kViewSize.height())};
constexpr double kTurn = 0.004;  // radians from frame to frame

QImage paper(const benchmark::State& state) {
    return geo::reference::paper(static_cast<double>(state.range(0)));
}

void projectByFormula(benchmark::State& state) {
    geo::LatLonRadians center{0.35, 0.2};
    std::vector<geo::reference::Projected> points;
    for ([[maybe_unused]] auto _ : state) {
        points.clear();
        for (const engine::CountryRing& ring : geo::reference::countries()) {
            for (const engine::LatLon& place : ring) {
                points.push_back(geo::reference::project(place, center));
            }
        }
        benchmark::DoNotOptimize(points.data());
        center.lon += kTurn;
    }
}
BENCHMARK(projectByFormula)->Unit(benchmark::kMicrosecond);

void project(benchmark::State& state) {
    geo::GlobeScene scene = geo::GlobeScene::make(geo::reference::countries());
    double lon = 0.2;
    for ([[maybe_unused]] auto _ : state) {
        scene.outlines.project({{0.35, lon}, kView}, scene.projected);
        benchmark::DoNotOptimize(scene.projected.points.data());
        lon += kTurn;
    }
}
BENCHMARK(project)->Unit(benchmark::kMicrosecond);

void straightforwardFrame(benchmark::State& state) {
    QImage image = paper(state);
    geo::LatLonRadians center{0.35, 0.2};
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        geo::reference::draw(painter, center);
        center.lon += kTurn;
    }
}
BENCHMARK(straightforwardFrame)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void frame(benchmark::State& state) {
    QImage image = paper(state);
    geo::GlobeWidget globe(geo::reference::countries);
    globe.resize(geo::reference::kViewSize);
    // The first frame comes without lines.
    globe.render(&image);
    QApplication::processEvents();
    double lon = 0.2;
    for ([[maybe_unused]] auto _ : state) {
        globe.setCenter({0.35, lon});
        globe.render(&image, {}, {}, {});
        lon += kTurn;
    }
}
BENCHMARK(frame)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

/// The outlines as one frame projects them.
graphics::LineBatch projectedOutlines() {
    geo::GlobeScene scene = geo::GlobeScene::make(geo::reference::countries());
    scene.outlines.project({{0.35, 0.2}, kView}, scene.projected);
    return scene.projected;
}

void strokeOutlines(benchmark::State& state) {
    QImage image = paper(state);
    const graphics::LineBatch lines = projectedOutlines();
    graphics::FrameCache cache;
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        graphics::QtCanvas canvas(painter, kView, &cache);
        canvas.strokeLines(lines, graphics::Color::hex("#2ebd5e"), 1.2);
    }
    state.counters["points"] = static_cast<double>(lines.points.size());
}
BENCHMARK(strokeOutlines)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

/// The painter's fastest way, which leaves corners open.
void strokeOutlinesByDrawLines(benchmark::State& state) {
    QImage image = paper(state);
    const graphics::LineBatch lines = projectedOutlines();
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(geo::reference::pen("#2ebd5e", 1.2));
        QList<QLineF> segments;
        for (std::size_t i = 0; i < lines.lineCount(); ++i) {
            const std::span<const graphics::Point> line = lines.line(i);
            for (std::size_t j = 1; j < line.size(); ++j) {
                segments.emplace_back(line[j - 1].x, line[j - 1].y, line[j].x, line[j].y);
            }
        }
        painter.drawLines(segments);
    }
}
BENCHMARK(strokeOutlinesByDrawLines)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
