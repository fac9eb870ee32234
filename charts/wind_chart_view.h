#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "charts/chart_look.h"
#include "engine/climate_data.h"
#include "graphics/canvas.h"

namespace kalvo::charts {

/// The days per wind-speed class of every month as stacked bars, the strongest class at the
/// bottom, on a fixed scale of 0 to 31 days. Values are not clamped: a taller bar is cut by the
/// view.
struct WindChartView {
    engine::WindDistribution distribution;

    /// A month's column, or one segment of its bar.
    struct Hit {
        std::size_t month;                     // 0 to 11
        std::optional<std::size_t> windClass;  // 0 to 6
        friend bool operator==(const Hit&, const Hit&) = default;
    };

    void draw(graphics::Canvas& canvas,
              graphics::Size size,
              const ChartLook& look = ChartLook::screen()) const;
    /// What lies at a point of a view of that size; nothing beside the plot.
    [[nodiscard]] std::optional<Hit> hitTest(graphics::Point point, graphics::Size size) const;
    /// Tells in words what was hit and its figures; the classes of a whole month on lines of their
    /// own.
    [[nodiscard]] std::string describe(const Hit& hit) const;
    /// Says in one sentence what the chart shows.
    [[nodiscard]] std::string summary() const;

    friend bool operator==(const WindChartView&, const WindChartView&) = default;
};

}  // namespace kalvo::charts
