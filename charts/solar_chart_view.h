#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "charts/chart_look.h"
#include "engine/climate_data.h"
#include "graphics/canvas.h"

namespace kalvo::charts {

/// The sky conditions of every month as stacked bars, and the days with precipitation as a line
/// across them, on a fixed scale of 0 to 31 days. Values are not clamped: what leaves the plot is
/// cut by the view. Months that a list lacks are left out of its series.
struct SolarChartView {
    engine::SolarData solarData;

    enum class Condition { kSunny, kPartlyCloudy, kOvercast, kPrecipitation };

    /// A month's column, or one segment of its bar, or its piece of the precipitation line.
    struct Hit {
        std::size_t month;  // 0 to 11
        std::optional<Condition> condition;
        friend bool operator==(const Hit&, const Hit&) = default;
    };

    /// Returns the color that a condition has in the chart and its legends.
    [[nodiscard]] static graphics::Color color(Condition condition);

    void draw(graphics::Canvas& canvas,
              graphics::Size size,
              const ChartLook& look = ChartLook::screen()) const;
    /// What lies at a point of a view of that size; nothing beside the plot.
    [[nodiscard]] std::optional<Hit> hitTest(graphics::Point point, graphics::Size size) const;
    /// Tells in words what was hit and its figures; the conditions of a whole month on lines of
    /// their own.
    [[nodiscard]] std::string describe(const Hit& hit) const;
    /// Says in one sentence what the chart shows.
    [[nodiscard]] std::string summary() const;

    friend bool operator==(const SolarChartView&, const SolarChartView&) = default;
};

}  // namespace kalvo::charts
