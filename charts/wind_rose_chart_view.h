#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "charts/chart_look.h"
#include "engine/climate_data.h"
#include "graphics/canvas.h"

namespace kalvo::charts {

/// How often the wind blows from each of sixteen directions, as wedges split radially into the
/// wind-speed classes (the calmest innermost) over two reference rings. Radii are not clamped: a
/// larger wedge is cut by the view.
struct WindRoseChartView {
    engine::WindRoseData roseData;

    /// The count that is drawn at the outer radius, and those of the two rings.
    struct Scale {
        int full;
        int innerRing;
        int outerRing;
        friend bool operator==(const Scale&, const Scale&) = default;
    };

    /// A direction's sixteenth of the disc, or one class of its wedge.
    struct Hit {
        std::size_t sector;                    // 0 to 15
        std::optional<std::size_t> windClass;  // 0 to 6
        friend bool operator==(const Hit&, const Hit&) = default;
    };

    /// Chooses the rings by the largest sector total; keys beyond 15 take part.
    [[nodiscard]] Scale scale() const;

    void draw(graphics::Canvas& canvas,
              graphics::Size size,
              const ChartLook& look = ChartLook::screen()) const;
    /// What lies at a point of a view of that size; nothing outside the disc and its wedges.
    [[nodiscard]] std::optional<Hit> hitTest(graphics::Point point, graphics::Size size) const;
    /// Tells in words what was hit and its figures; the classes of a whole direction on lines of
    /// their own.
    [[nodiscard]] std::string describe(const Hit& hit) const;
    /// Says in one sentence what the chart shows.
    [[nodiscard]] std::string summary() const;

    friend bool operator==(const WindRoseChartView&, const WindRoseChartView&) = default;
};

}  // namespace kalvo::charts
