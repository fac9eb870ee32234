#include <algorithm>
#include <cmath>
#include <vector>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <benchmark/benchmark.h>

#include "engine/location_parser.h"
#include "geo/globe_projection.h"
#include "geo/globe_view.h"
#include "geo/globe_widget.h"
#include "platform/qt/qt_canvas.h"

/// A frame of the globe as large as on the main screen, and its two shares, each beside the
/// straightforward way of doing it.
namespace {

using namespace kalvo;
using engine::CountryRing;
using platform::Point;
using platform::Size;

constexpr Size kView{970, 508};

const std::vector<CountryRing>& countries() {
    static const platform::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    static engine::LocationParser parser(bundle, platform::Diagnostics::standardOutput());
    return parser.loadWorldCountryRings();
}

geo::GlobeView view() {
    return {.centerLat = 0.35,
            .centerLon = 0.2,
            .targetLat = {},
            .targetLon = {},
            .targetName = {},
            .highlightedCountry = {},
            .onGlobeTap = {}};
}

struct FormulaPoint {
    Point point;
    double cosDistance;
};

/// The projection as it is written in books, all its sines and cosines for every point.
FormulaPoint projectByFormula(engine::LatLon place, const geo::GlobeView& globe) {
    const double radius = std::min(kView.width, kView.height) / 2.3;
    const double lat = geo::toRadians(place.lat);
    const double turn = geo::toRadians(place.lon) - globe.centerLon;
    const double cosDistance = std::sin(globe.centerLat) * std::sin(lat) +
                               std::cos(globe.centerLat) * std::cos(lat) * std::cos(turn);
    const double x = kView.width * 0.5 + radius * std::cos(lat) * std::sin(turn);
    const double y =
        kView.height * 0.5 - radius * (std::cos(globe.centerLat) * std::sin(lat) -
                                       std::sin(globe.centerLat) * std::cos(lat) * std::cos(turn));
    return {{x, y}, cosDistance};
}

void BM_ProjectByFormula(benchmark::State& state) {
    geo::GlobeView globe = view();
    std::vector<FormulaPoint> points;
    for (auto _ : state) {
        points.clear();
        for (const CountryRing& ring : countries()) {
            for (const engine::LatLon& place : ring) {
                points.push_back(projectByFormula(place, globe));
            }
        }
        benchmark::DoNotOptimize(points.data());
        globe.centerLon += 0.004;
    }
}
BENCHMARK(BM_ProjectByFormula)->Unit(benchmark::kMicrosecond);

void BM_ProjectByRotation(benchmark::State& state) {
    geo::GlobeView globe = view();
    geo::GlobeScene scene = geo::GlobeScene::make(countries());
    for (auto _ : state) {
        scene.outlines.project({globe.centerLat, globe.centerLon, kView}, scene.projected);
        benchmark::DoNotOptimize(scene.projected.points.data());
        globe.centerLon += 0.004;
    }
}
BENCHMARK(BM_ProjectByRotation)->Unit(benchmark::kMicrosecond);

/// A picture of the view in device pixels: the argument is the scale of the screen.
QImage paper(const benchmark::State& state) {
    const auto scale = static_cast<double>(state.range(0));
    QImage image(static_cast<int>(kView.width * scale), static_cast<int>(kView.height * scale),
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(QColor("#0c1d2d"));
    return image;
}

void strokeByFormula(QPainter& painter, const CountryRing& line, const geo::GlobeView& globe) {
    QPainterPath path;
    bool joined = false;
    for (const engine::LatLon& place : line) {
        const auto [point, cosDistance] = projectByFormula(place, globe);
        const bool visible = cosDistance >= -0.05;
        if (visible && joined) path.lineTo(point.x, point.y);
        if (visible && !joined) path.moveTo(point.x, point.y);
        joined = visible;
    }
    painter.drawPath(path);
}

void paintStraightforward(QPainter& painter, const geo::GlobeView& globe) {
    const double radius = std::min(kView.width, kView.height) / 2.3;
    const QPointF middle(kView.width / 2, kView.height / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(0, 0, kView.width, kView.height), QColor("#0c1d2d"));
    painter.setPen(QPen(QColor("#1f5f7a"), 2));
    painter.setBrush(QColor("#0c1d2d"));
    painter.drawEllipse(middle, radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor("#12354c"), 1));
    for (double lat = -60; lat <= 60; lat += 30) {
        CountryRing line;
        for (double lon = -180; lon <= 180; lon += 5) line.push_back({lat, lon});
        strokeByFormula(painter, line, globe);
    }
    for (double lon = -180; lon <= 150; lon += 30) {
        CountryRing line;
        for (double lat = -85; lat <= 85; lat += 5) line.push_back({lat, lon});
        strokeByFormula(painter, line, globe);
    }
    painter.setPen(QPen(QColor("#2ebd5e"), 1.2));
    for (const CountryRing& ring : countries()) strokeByFormula(painter, ring, globe);
}

void BM_FrameStraightforward(benchmark::State& state) {
    QImage image = paper(state);
    geo::GlobeView globe = view();
    for (auto _ : state) {
        QPainter painter(&image);
        paintStraightforward(painter, globe);
        globe.centerLon += 0.004;
    }
}
BENCHMARK(BM_FrameStraightforward)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void BM_Frame(benchmark::State& state) {
    QImage image = paper(state);
    geo::GlobeWidget globe(countries);
    globe.resize(static_cast<int>(kView.width), static_cast<int>(kView.height));
    double lon = 0.2;
    for (auto _ : state) {
        globe.setCenter(0.35, lon);
        globe.render(&image, {}, {}, {});
        lon += 0.004;
    }
}
BENCHMARK(BM_Frame)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

/// The share of stroking in a frame: the outlines of one projection, again and again.
void BM_StrokeOutlines(benchmark::State& state) {
    QImage image = paper(state);
    const geo::GlobeView globe = view();
    geo::GlobeScene scene = geo::GlobeScene::make(countries());
    scene.outlines.project({globe.centerLat, globe.centerLon, kView}, scene.projected);
    platform::ThinLines thinLines;
    for (auto _ : state) {
        QPainter painter(&image);
        platform::QtCanvas canvas(painter, kView, &thinLines);
        canvas.strokeLines(scene.projected, platform::Color::hex("#2ebd5e"), 1.2);
    }
    state.counters["points"] = static_cast<double>(scene.projected.points.size());
}
BENCHMARK(BM_StrokeOutlines)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

/// The same with the painter's own lines, which leave corners open.
void BM_StrokeOutlinesByPainter(benchmark::State& state) {
    QImage image = paper(state);
    const geo::GlobeView globe = view();
    geo::GlobeScene scene = geo::GlobeScene::make(countries());
    const platform::LineBatch& lines = scene.projected;
    scene.outlines.project({globe.centerLat, globe.centerLon, kView}, scene.projected);
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor("#2ebd5e"), 1.2, Qt::SolidLine, Qt::FlatCap));
        QList<QLineF> segments;
        for (std::size_t i = 0; i < lines.starts.size(); ++i) {
            const std::size_t end =
                i + 1 < lines.starts.size() ? lines.starts[i + 1] : lines.points.size();
            for (std::size_t j = lines.starts[i] + 1; j < end; ++j) {
                const Point from = lines.points[j - 1];
                const Point to = lines.points[j];
                segments.emplace_back(from.x, from.y, to.x, to.y);
            }
        }
        painter.drawLines(segments);
    }
}
BENCHMARK(BM_StrokeOutlinesByPainter)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
