#include "charts/solar_chart_view.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include <fmt/format.h>

#include "charts/chart_frame.h"
#include "charts/italian_text.h"
#include "charts/month_plot.h"
#include "engine/calculation_engine.h"

namespace kalvo::charts {

namespace {

using Condition = SolarChartView::Condition;
using graphics::Color;
using graphics::kGray;
using graphics::Point;

/// Where a stack ends that rises without end: another endless segment can still lead back.
constexpr double kEndless = 1e300;  // points

constexpr std::array<Condition, 3> kSkyConditions{Condition::kSunny, Condition::kPartlyCloudy,
                                                  Condition::kOvercast};

const std::vector<double>& seriesOf(const engine::SolarData& data, Condition condition) {
    switch (condition) {
        case Condition::kSunny:
            return data.sunny;
        case Condition::kPartlyCloudy:
            return data.partlyCloudy;
        case Condition::kOvercast:
            return data.overcast;
        case Condition::kPrecipitation:
            break;
    }
    return data.precip;
}

std::string_view nameOf(Condition condition) {
    static constexpr std::array<std::string_view, 4> kNames{"Sole", "Parzialmente nuvoloso",
                                                            "Coperto", "Pioggia"};
    return kNames.at(static_cast<std::size_t>(condition));
}

/// The days of a condition in a month, or nothing where the list is too short or holds no number.
std::optional<double> daysOf(const engine::SolarData& data,
                             Condition condition,
                             std::size_t month) {
    const std::vector<double>& series = seriesOf(data, condition);
    if (month >= series.size() || std::isnan(series[month])) return std::nullopt;
    return series[month];
}

/// The places of the bars: eighteen bar widths hold twelve bars and the gaps of half a bar
/// between them.
struct Bars {
    double width;
    double firstLeft;

    static Bars of(const MonthPlot& plot) {
        const double width = plot.width() / 18;
        return {width, plot.left + width / 4};
    }
    [[nodiscard]] double left(std::size_t month) const {
        return firstLeft + static_cast<double>(month) * 1.5 * width;
    }
    [[nodiscard]] double center(std::size_t month) const { return left(month) + width / 2; }
};

/// Calls `visit(condition, rectangle)` for the segments of a month's bar, from the bottom up.
template <class Visit>
void forEachSegment(const engine::SolarData& data,
                    const MonthPlot& plot,
                    std::size_t month,
                    const Visit& visit) {
    const Bars bars = Bars::of(plot);
    double bottom = plot.baseline;
    for (const Condition condition : kSkyConditions) {
        const std::optional<double> days = daysOf(data, condition, month);
        if (!days) continue;
        const double length = plot.heightForDays(*days);
        visit(condition, barSegment(bars.left(month), bars.width, bottom, length));
        bottom = std::clamp(bottom - length, -kEndless, kEndless);
    }
}

std::vector<Point> precipitationLine(const engine::SolarData& data, const MonthPlot& plot) {
    const Bars bars = Bars::of(plot);
    std::vector<Point> points;
    points.reserve(MonthPlot::kMonths);
    for (std::size_t month = 0; month < MonthPlot::kMonths; ++month) {
        const std::optional<double> days = daysOf(data, Condition::kPrecipitation, month);
        if (days) points.push_back({bars.center(month), plot.y(*days)});
    }
    return points;
}

/// Whether a point lies on a polyline that runs from left to right, give or take a few points.
bool isNearPolyline(const std::vector<Point>& line, Point point) {
    constexpr double kReach = 3;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const Point& from = line[i - 1];
        const Point& to = line[i];
        if (point.x < from.x || point.x > to.x) continue;
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        const double across =
            (to.x - from.x) * (point.y - from.y) - (to.y - from.y) * (point.x - from.x);
        return std::abs(across) < kReach * length;
    }
    return false;
}

}  // namespace

graphics::Color SolarChartView::color(Condition condition) {
    static const std::array<Color, 4> kColors{Color::hex("#ffe600"), Color::hex("#d6d69c"),
                                              Color::hex("#666666"), Color::hex("#2f80ed")};
    return kColors.at(static_cast<std::size_t>(condition));
}

void SolarChartView::draw(graphics::Canvas& canvas,
                          graphics::Size size,
                          const ChartLook& look) const {
    drawInChartFrame(canvas, size, look, [&] {
        const MonthPlot plot = MonthPlot::of(size);
        const Bars bars = Bars::of(plot);
        drawDayAxis(canvas, plot,
                    {.gridline = look.gridline(0.2),
                     .firstLine = 0,
                     .label = look.labelStyle(7, false),
                     .alignsLabels = look.isPrinted});
        for (std::size_t month = 0; month < MonthPlot::kMonths; ++month) {
            forEachSegment(solarData, plot, month,
                           [&](Condition condition, const graphics::Rect& rect) {
                               look.fillSegment(canvas, size, rect, color(condition));
                               if (!look.isPrinted || condition != Condition::kPartlyCloudy) return;
                               drawHatching(canvas, intersection(rect, ChartLook::dataArea(size)));
                           });
            canvas.drawText(engine::CalculationEngine::months[month],
                            {bars.center(month), plot.baseline + 10}, look.labelStyle(8, false));
        }
        const graphics::Path precipitation{{{precipitationLine(solarData, plot), false}}};
        if (look.isPrinted) {
            canvas.save();
            canvas.clipRoundedRect(ChartLook::dataArea(size), 0);
            canvas.strokePath(precipitation, {graphics::kWhite, 3.4});
        }
        canvas.strokePath(precipitation, {color(Condition::kPrecipitation), 2});
        if (look.isPrinted) canvas.restore();
    });
}

std::optional<SolarChartView::Hit> SolarChartView::hitTest(graphics::Point point,
                                                           graphics::Size size) const {
    const MonthPlot plot = MonthPlot::of(size);
    const std::optional<std::size_t> month = plot.monthAt(point.x);
    if (!month) return std::nullopt;
    Hit hit{*month, std::nullopt};
    forEachSegment(solarData, plot, *month, [&](Condition condition, const graphics::Rect& rect) {
        if (contains(rect, point)) hit.condition = condition;
    });
    if (isNearPolyline(precipitationLine(solarData, plot), point)) {
        hit.condition = Condition::kPrecipitation;
    }
    return hit;
}

std::string SolarChartView::describe(const Hit& hit) const {
    const auto daysIn = [&](Condition condition) {
        const std::optional<double> days = daysOf(solarData, condition, hit.month);
        return days ? formatDays(*days) : std::string("nessun dato");
    };
    const std::string_view month = monthName(hit.month);
    if (hit.condition) {
        return fmt::format("{} · {}: {}", month, nameOf(*hit.condition), daysIn(*hit.condition));
    }
    std::string text(month);
    for (const Condition condition : {Condition::kSunny, Condition::kPartlyCloudy,
                                      Condition::kOvercast, Condition::kPrecipitation}) {
        text += fmt::format("\n{}: {}", nameOf(condition), daysIn(condition));
    }
    return text;
}

std::string SolarChartView::summary() const {
    if (solarData == engine::SolarData{}) return "Nessun dato sulle condizioni del cielo.";
    const auto largest = [&](Condition condition) {
        std::size_t best = 0;
        for (std::size_t month = 1; month < MonthPlot::kMonths; ++month) {
            if (daysOf(solarData, condition, month).value_or(0) >
                daysOf(solarData, condition, best).value_or(0)) {
                best = month;
            }
        }
        return fmt::format("{} ({})", monthName(best),
                           formatDays(daysOf(solarData, condition, best).value_or(0)));
    };
    return fmt::format("Il mese con più giorni di sole è {}, quello con più giorni di pioggia {}.",
                       largest(Condition::kSunny), largest(Condition::kPrecipitation));
}

}  // namespace kalvo::charts
