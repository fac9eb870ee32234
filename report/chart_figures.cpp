#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "charts/chart_look.h"
#include "charts/solar_chart_view.h"
#include "charts/speed_histogram.h"
#include "charts/wind_chart_view.h"
#include "charts/wind_rose_chart_view.h"
#include "engine/wind_range.h"
#include "report/report_text.h"
#include "report/second_page.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

using charts::SolarChartView;
using engine::WindRange;
using graphics::Canvas;

bool hasSky(const Report& report) { return !(report.sky == engine::SolarData{}); }

/// What a turbine of each size yields, by the classes of the wind.
std::string_view turbineOutputs(int kilowatts) {
    switch (kilowatts) {
        case 1:
            return "Una turbina da 1\u00a0kW rende al giorno 0,25\u00a0kWh a 5-10\u00a0km/h, "
                   "12\u00a0a 10-20 e 24 oltre i\u00a020; sotto i\u00a05 nulla.";
        case 2:
            return "Una turbina da 2\u00a0kW rende al giorno 0,5\u00a0kWh a 5-10\u00a0km/h, "
                   "24\u00a0a 10-20 e 48 oltre i\u00a020; sotto i\u00a05 nulla.";
        default:
            return "Una turbina da 3\u00a0kW rende al giorno 36\u00a0kWh a 10-20\u00a0km/h, "
                   "72\u00a0a 20-30 e 48 oltre i\u00a030; sotto i\u00a010 nulla.";
    }
}

/// "; più di tutto WSW (19%) e SW (15%)", or nothing where no wind blows.
std::string prevailingDirections(const engine::WindRoseData& rose) {
    constexpr std::size_t kSectors = 16;
    std::array<double, kSectors> totals{};
    for (std::size_t sector = 0; sector < kSectors; ++sector) {
        const auto found = rose.find(static_cast<int>(sector));
        if (found == rose.end()) continue;
        totals[sector] = std::max(0.0, charts::totalOf(charts::speedHistogram(found->second)));
    }
    std::array<std::size_t, kSectors> order{};
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](auto a, auto b) { return totals[a] > totals[b]; });
    const double all = std::accumulate(totals.begin(), totals.end(), 0.0);
    if (!(totals[order[1]] > 0)) return "";
    const auto share = [&](std::size_t sector) {
        return fmt::format("{}\u00a0({:.0f}%)", sectorName(sector), totals[sector] / all * 100);
    };
    return fmt::format("; più di tutto {} e {}", share(order[0]), share(order[1]));
}

/// Draws a chart view in a box at the scale of the page.
template <class View>
void drawChart(Canvas& canvas, const View& view, const graphics::Rect& box) {
    constexpr double kScale = 1.25;
    canvas.save();
    canvas.translate(box.x, box.y);
    canvas.scale(kScale);
    view.draw(canvas, {box.width / kScale, box.height / kScale}, charts::ChartLook::paper());
    canvas.restore();
}

constexpr double kLegendGap = 4;  // between a swatch and its text
constexpr double kLegendLeading = 13;

std::string daysOfTheYear(std::string_view name, const std::vector<double>& days) {
    return fmt::format("{}\u00a0{}", name,
                       formatFigure(std::round(std::accumulate(days.begin(), days.end(), 0.0))));
}

}  // namespace

std::string windCaption(const Report& report) {
    return fmt::format(
        "Giorni\u00a0(g) di ogni mese per classe di vento, {}; dall’alto in basso il vento cresce, "
        "come nella tabella. {}",
        report.windBasis == WindBasis::kMeteoblue ? "dai dati di Meteoblue"
                                                  : "stimati dal vento medio",
        turbineOutputs(report.kilowatts));
}

std::string roseCaption(const Report& report) {
    const bool isMeasured = report.windBasis == WindBasis::kMeteoblue;
    return fmt::format(
        "Ore l’anno, secondo da dove soffia{}. Dal centro in fuori il vento cresce; W\u00a0è "
        "l’ovest.",
        isMeasured ? prevailingDirections(report.rose) : ": ipotesi del modello, non misure");
}

std::string skyCaption(const Report& report) {
    if (!hasSky(report)) return "";
    return fmt::format(
        "Giorni\u00a0(g) {}. In ogni stagione un kWp rende al giorno 5,5\u00a0kWh se è sereno, 2,8 "
        "se in parte nuvoloso, 0,8 se coperto.",
        report.hasDownloadedSky ? "dai dati di Meteoblue" : "medi della zona");
}

void drawWindChart(Canvas& canvas, const Report& report, const graphics::Rect& box) {
    drawChart(canvas, charts::WindChartView{report.distribution}, box);
}

void drawRose(Canvas& canvas, const Report& report, const graphics::Rect& box) {
    drawChart(canvas, charts::WindRoseChartView{report.rose}, box);
}

void drawSkyChart(Canvas& canvas, const Report& report, const graphics::Rect& box) {
    if (hasSky(report)) {
        drawChart(canvas, SolarChartView{report.sky}, box);
        return;
    }
    canvas.strokeRoundedRect(box, 0, {palette().hairline, 0.5});
    drawCentered(canvas, "Dati del cielo non disponibili", box.x + box.width / 2,
                 box.y + box.height / 2 + 3, captionStyle());
}

void drawWindLegend(Canvas& canvas, double x, double y) {
    constexpr std::size_t kPerLine = 4;
    constexpr double kPitch = 49;
    for (std::size_t windClass = 0; windClass < WindRange::kCount; ++windClass) {
        const double left = x + kPitch * static_cast<double>(windClass % kPerLine);
        const double baseline = y + kLegendLeading * static_cast<double>(windClass / kPerLine);
        std::string label(WindRange::labels[windClass]);
        // The unit stands with the last of them.
        if (windClass + 1 < WindRange::kCount) label.resize(label.find(" km/h"));
        drawSwatch(canvas, {left, baseline - 7}, WindRange::colors[windClass]);
        drawLeft(canvas, label, left + kSwatchSize + kLegendGap, baseline, bodyStyle());
    }
}

void drawSkyLegend(Canvas& canvas, const Report& report, double x, double y) {
    if (!hasSky(report)) return;
    using Condition = SolarChartView::Condition;
    constexpr double kEntryGap = 14;
    constexpr double kLineLength = 14;
    double left = x;
    const auto drawEntry = [&](Condition condition, const std::string& text) {
        const graphics::Rect swatch{left, y - 7, kSwatchSize, kSwatchSize};
        drawSwatch(canvas, {swatch.x, swatch.y}, SolarChartView::color(condition));
        if (condition == Condition::kPartlyCloudy) charts::drawHatching(canvas, swatch);
        left += kSwatchSize + kLegendGap;
        drawLeft(canvas, text, left, y, bodyStyle());
        left += canvas.textWidth(text, bodyStyle()) + kEntryGap;
    };
    drawEntry(Condition::kSunny, daysOfTheYear("sereno", report.sky.sunny));
    drawEntry(Condition::kPartlyCloudy,
              daysOfTheYear("in parte nuvoloso", report.sky.partlyCloudy));
    drawEntry(Condition::kOvercast, daysOfTheYear("coperto", report.sky.overcast));

    const double second = y + kLegendLeading;
    canvas.strokePath({{{{{x, second - 3}, {x + kLineLength, second - 3}}, false}}},
                      {SolarChartView::color(Condition::kPrecipitation), 2});
    const std::string rain = daysOfTheYear("precipitazioni", report.sky.precip);
    left = x + kLineLength + kLegendGap;
    drawLeft(canvas, rain, left, second, bodyStyle());
    drawLeft(canvas, "(giorni l’anno)", left + canvas.textWidth(rain, bodyStyle()) + kEntryGap,
             second, captionStyle());
}

}  // namespace kalvo::report
