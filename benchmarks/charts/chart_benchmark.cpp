#include <benchmark/benchmark.h>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include "charts/solar_chart_view.h"
#include "charts/wind_chart_view.h"
#include "charts/wind_rose_chart_view.h"
#include "engine/calculation_engine.h"
#include "graphics/qt/qt_canvas.h"

// What a frame of each chart costs, as commands and as pixels, with ordinary values and with
// values as they may come from the web.

namespace {

using namespace kalvo;
using charts::SolarChartView;
using charts::WindChartView;
using charts::WindRoseChartView;
using engine::CalculationEngine;

constexpr graphics::Size kSize{480, 200};

/// The charts of a place, or the same with one value far out of the plot.
template <class View>
View chartOf(bool isEndless);

template <>
WindChartView chartOf(bool isEndless) {
    WindChartView view{CalculationEngine::calculateMonthlyWindDistribution(
        {.kwh = 3200, .lat = 41.9, .lon = 12.5, .region = "Lazio"})};
    if (isEndless) view.distribution.at("Mar")[3] = std::numeric_limits<std::int64_t>::max();
    return view;
}

template <>
WindRoseChartView chartOf(bool isEndless) {
    WindRoseChartView view{CalculationEngine::calculateWindRoseData(
        {.cityLabel = "Roma (RM)", .kwh = 3200, .lat = 41.9, .lon = 12.5, .region = "Lazio"})};
    if (isEndless) view.roseData.at(3)[3] = std::numeric_limits<std::int64_t>::max();
    return view;
}

template <>
SolarChartView chartOf(bool isEndless) {
    SolarChartView view{CalculationEngine::calculateOfflineSolarData(
        {.lat = 41.9, .lon = 12.5, .region = "Lazio"})};
    if (isEndless) {
        view.solarData.sunny[2] = 1e300;
        view.solarData.precip[2] = 1e300;
    }
    return view;
}

QImage paper() {
    return {static_cast<int>(kSize.width), static_cast<int>(kSize.height),
            QImage::Format_ARGB32_Premultiplied};
}

template <class View>
void painted(benchmark::State& state) {
    const View view = chartOf<View>(state.range(0) != 0);
    QImage image = paper();
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        graphics::QtCanvas canvas(painter, kSize);
        view.draw(canvas, kSize);
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}

/// The alternative: the precipitation line as the toolkit takes it, without being cut first.
void lineUncut(benchmark::State& state) {
    QImage image = paper();
    QPainterPath path;
    for (int month = 0; month < 12; ++month) {
        const QPointF point(50 + 35 * month,
                            month == 2 ? -static_cast<double>(state.range(0)) : 100);
        month == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.strokePath(path, QPen(Qt::blue, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}

}  // namespace

BENCHMARK(painted<WindChartView>)->ArgName("endless")->Arg(0)->Arg(1);
BENCHMARK(painted<WindRoseChartView>)->ArgName("endless")->Arg(0)->Arg(1);
BENCHMARK(painted<SolarChartView>)->ArgName("endless")->Arg(0)->Arg(1);
BENCHMARK(lineUncut)->ArgName("length")->Arg(100)->Arg(1'000'000)->Arg(1'000'000'000);

int main(int argc, char** argv) {
    // Texts need fonts, and fonts an application.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
