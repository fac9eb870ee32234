#include <benchmark/benchmark.h>

#include <cstdlib>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

#include "base/bundle.h"
#include "geo/qt/map_widget.h"
#include "graphics/qt/qt_canvas.h"

/// A frame of the wind map of the 107 provinces in a view of 900 x 600 points, at one and at two
/// pixels a point: drawn from the coordinates on, from the outlines laid out before, and as the
/// widget shows it while nothing changes, while it is dragged and while it is zoomed.
namespace {

using namespace kalvo;

constexpr graphics::Size kView{900, 600};

geo::MapView provinces() {
    static const geojson::GeoMapData map =
        *base::readFile(KALVO_SOURCE_DIR "/resources/province.json")
             .and_then(geojson::decodeGeoJSON);
    geo::MapView view;
    static_cast<geo::MapContent&>(view) = {.mapType = geo::MapType::kWind,
                                           .geoData = map,
                                           .selectedRegion = {},
                                           .selectedProvince = {},
                                           .provinceWindMap = {},
                                           .targetLat = 41.9,
                                           .targetLon = 12.5,
                                           .targetName = {}};
    double yield = 1800;
    for (const geojson::GeoFeature& feature : map.features) {
        view.provinceWindMap[*feature.property("sigla")] = yield += 40;
    }
    return view;
}

QImage surface(const benchmark::State& state) {
    const auto pixels = static_cast<double>(state.range(0));
    QImage image((QSizeF(kView.width, kView.height) * pixels).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixels);
    return image;
}

void rebuilt(benchmark::State& state) {
    const geo::MapView view = provinces();
    QImage image = surface(state);
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        graphics::QtCanvas canvas(painter, kView);
        view.draw(canvas, kView);
    }
}

/// The second argument is the zoom in tenths.
void laidOut(benchmark::State& state) {
    geo::MapView view = provinces();
    view.gestures.scale = static_cast<double>(state.range(1)) / 10;
    const geo::MapScene scene = geo::MapScene::make(*view.geoData, kView);
    QImage image = surface(state);
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        graphics::QtCanvas canvas(painter, kView);
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

/// The widget on a screen of `state.range(0)` pixels a point; `change` comes before each frame.
template <class Change>
void shown(benchmark::State& state, Change change) {
    geo::MapWidget widget;
    widget.resize(900, 600);
    widget.setContent(provinces());
    widget.show();
    QImage image = surface(state);
    for ([[maybe_unused]] auto _ : state) {
        change(widget);
        widget.render(&image, {}, {}, {});
    }
}

void unchanged(benchmark::State& state) {
    shown(state, [](geo::MapWidget&) {});
}

void dragged(benchmark::State& state) {
    int step = 0;
    shown(state, [&](geo::MapWidget& widget) {
        if (step == 0) QTest::mousePress(&widget, Qt::LeftButton, {}, {450, 300});
        // There and back, 9 points from frame to frame.
        step = (step + 1) % 80;
        QTest::mouseMove(&widget, {450 + 9 * std::abs(40 - step), 300 + 3 * step});
    });
}

void zoomed(benchmark::State& state) {
    bool isNear = false;
    shown(state, [&](geo::MapWidget& widget) {
        isNear = !isNear;
        QTest::keyClick(&widget, isNear ? Qt::Key_Plus : Qt::Key_Minus);
    });
}

}  // namespace

BENCHMARK(rebuilt)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(layout)->Unit(benchmark::kMillisecond);
BENCHMARK(laidOut)->ArgsProduct({{1, 2}, {8, 10, 20, 40, 80, 150}})->Unit(benchmark::kMillisecond);
// By the clock on the wall: the widget draws on two threads.
BENCHMARK(unchanged)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(dragged)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(zoomed)->Arg(1)->UseRealTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
