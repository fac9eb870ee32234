#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "geo/map_view.h"
#include "platform/bundle.h"
#include "platform/qt/qt_canvas.h"

/// A frame of the wind map of the 107 provinces in a view of 900 x 600 points, at one and at two
/// pixels a point: from the coordinates on, from the outlines laid out before, and copied.
namespace {

using namespace kalvo;

constexpr platform::Size kView{900, 600};

geo::MapView provinces() {
    static const geo::GeoMapData map =
        *platform::readFile(KALVO_SOURCE_DIR "/resources/province.json")
             .and_then(geo::decodeGeoJSON);
    geo::MapView view{.mapType = geo::MapType::kWind,
                      .geoData = map,
                      .selectedRegion = {},
                      .selectedProvince = {},
                      .provinceWindMap = {},
                      .targetLat = 41.9,
                      .targetLon = 12.5,
                      .onSelectLocation = {}};
    double yield = 1800;
    for (const geo::GeoFeature& feature : map.features) {
        view.provinceWindMap[*feature.property("sigla")] = yield += 40;
    }
    return view;
}

QImage surface(const benchmark::State& state) {
    const double pixels = static_cast<double>(state.range(0));
    QImage image((QSizeF(kView.width, kView.height) * pixels).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixels);
    return image;
}

void rebuilt(benchmark::State& state) {
    const geo::MapView view = provinces();
    QImage image = surface(state);
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        platform::QtCanvas canvas(painter, kView);
        view.draw(canvas, kView);
    }
}

/// The second argument is the zoom in tenths; the map moves by some points from frame to frame.
void moving(benchmark::State& state) {
    geo::MapView view = provinces();
    view.gestures.scale = static_cast<double>(state.range(1)) / 10;
    const geo::MapScene scene = geo::MapScene::make(*view.geoData, kView);
    QImage image = surface(state);
    double step = 0;
    for ([[maybe_unused]] auto _ : state) {
        view.gestures.offset.width = step = step > 200 ? -200 : step + 7.3;
        QPainter painter(&image);
        platform::QtCanvas canvas(painter, kView);
        view.draw(canvas, kView, scene);
    }
}

void layout(benchmark::State& state) {
    const geo::MapView view = provinces();
    for ([[maybe_unused]] auto _ : state) {
        auto scene = geo::MapScene::make(*view.geoData, kView);
        benchmark::DoNotOptimize(scene);
    }
}

void copied(benchmark::State& state) {
    const QImage picture = surface(state);
    QImage image = surface(state);
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        painter.drawImage(0, 0, picture);
    }
}

}  // namespace

BENCHMARK(rebuilt)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(moving)->ArgsProduct({{1, 2}, {8, 10, 20, 40, 80, 150}})->Unit(benchmark::kMillisecond);
BENCHMARK(layout)->Unit(benchmark::kMillisecond);
BENCHMARK(copied)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
