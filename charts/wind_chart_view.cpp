#include "charts/wind_chart_view.h"

#include <algorithm>

#include <fmt/format.h>

#include "charts/chart_frame.h"
#include "charts/italian_text.h"
#include "charts/month_plot.h"
#include "charts/speed_histogram.h"
#include "engine/calculation_engine.h"

namespace kalvo::charts {

namespace {

using engine::CalculationEngine;
using engine::WindRange;

double centerOfMonth(const MonthPlot& plot, std::size_t month) {
    const double groupWidth = plot.width() / MonthPlot::kMonths;
    return plot.left + static_cast<double>(month) * groupWidth + groupWidth / 2;
}

/// Calls `visit(class, rectangle)` for the segments of a month's bar, from the bottom up.
template <class Visit>
void forEachSegment(const SpeedHistogram& counts,
                    const MonthPlot& plot,
                    std::size_t month,
                    const Visit& visit) {
    const double barWidth = std::max(plot.width() / MonthPlot::kMonths * 0.6, 6.0);
    const double left = centerOfMonth(plot, month) - barWidth / 2;
    double top = plot.baseline;
    for (std::size_t windClass = WindRange::kCount; windClass-- > 0;) {
        if (counts[windClass] <= 0) continue;
        const double length = plot.heightForDays(static_cast<double>(counts[windClass]));
        visit(windClass, barSegment(left, barWidth, top, length));
        top -= length;
    }
}

/// Days of 20 km/h and more: the wind that turbines live on.
double windyDays(const SpeedHistogram& counts) {
    constexpr std::size_t kFirstWindyClass = 4;
    double days = 0;
    for (std::size_t i = kFirstWindyClass; i < counts.size(); ++i) {
        days += static_cast<double>(counts[i]);
    }
    return days;
}

}  // namespace

void WindChartView::draw(graphics::Canvas& canvas,
                         graphics::Size size,
                         const ChartLook& look) const {
    drawInChartFrame(canvas, size, look, [&] {
        const MonthPlot plot = MonthPlot::of(size);
        graphics::Stroke gridline = look.gridline(0.3);
        gridline.dash = {2, 2};
        drawDayAxis(canvas, plot,
                    {.gridline = gridline,
                     .firstLine = 5,
                     .label = look.labelStyle(8, false),
                     .alignsLabels = look.isPrinted});
        for (std::size_t month = 0; month < MonthPlot::kMonths; ++month) {
            const std::string_view name = CalculationEngine::months[month];
            canvas.drawText(name, {centerOfMonth(plot, month), plot.baseline + 12},
                            look.labelStyle(8, true));
            forEachSegment(countsOfMonth(distribution, name), plot, month,
                           [&](std::size_t windClass, const graphics::Rect& rect) {
                               look.fillSegment(canvas, size, rect, WindRange::colors[windClass]);
                           });
        }
    });
}

std::optional<WindChartView::Hit> WindChartView::hitTest(graphics::Point point,
                                                         graphics::Size size) const {
    const MonthPlot plot = MonthPlot::of(size);
    const std::optional<std::size_t> month = plot.monthAt(point.x);
    if (!month) return std::nullopt;
    Hit hit{*month, std::nullopt};
    forEachSegment(countsOfMonth(distribution, CalculationEngine::months[*month]), plot, *month,
                   [&](std::size_t windClass, const graphics::Rect& rect) {
                       if (contains(rect, point)) hit.windClass = windClass;
                   });
    return hit;
}

std::string WindChartView::describe(const Hit& hit) const {
    return describeCounts(monthName(hit.month),
                          countsOfMonth(distribution, CalculationEngine::months[hit.month]),
                          hit.windClass, formatDays);
}

std::string WindChartView::summary() const {
    std::array<double, MonthPlot::kMonths> windy{};
    for (std::size_t month = 0; month < windy.size(); ++month) {
        windy[month] = windyDays(countsOfMonth(distribution, CalculationEngine::months[month]));
    }
    const auto [calmest, windiest] = std::minmax_element(windy.begin(), windy.end());
    if (*windiest <= 0) return "Nessun mese ha giorni con vento da 20 km/h in su.";
    const auto monthOf = [&](auto position) {
        return monthName(static_cast<std::size_t>(position - windy.begin()));
    };
    return fmt::format(
        "Giorni al mese con vento da 20 km/h in su: il massimo è a {} ({}), il minimo a {} ({}).",
        monthOf(windiest), formatDays(*windiest), monthOf(calmest), formatDays(*calmest));
}

}  // namespace kalvo::charts
