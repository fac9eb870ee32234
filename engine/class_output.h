#pragma once

#include <array>

#include "engine/wind_range.h"

/// What a day yields: the outputs behind the production of a year and of its months. All of them
/// are round figures of this program's models, not of a maker's power curve or a measured plant.
namespace kalvo::engine {

/// kWh per day in each wind-speed class, in the order of `WindRange::labels`, of a turbine of
/// `kw` (1, 2; any other counts as 3): the rated share of a kilowatt times 24 hours. Only the
/// classes from 10 km/h up count by the hour, and the largest turbine is held back to 2 kW above
/// 30 km/h. The last two entries are equal.
[[nodiscard]] constexpr std::array<double, WindRange::kCount> kwhPerDay(int kw) {
    switch (kw) {
        case 1:
            return {0, 0, 0.25, 0.5 * 24, 24, 24, 24};
        case 2:
            return {0, 0, 0.5, 24, 2 * 24, 2 * 24, 2 * 24};
        default:
            return {0, 0, 0, 1.5 * 24, 3 * 24, 2 * 24, 2 * 24};
    }
}

/// kWh per kWp and day under each sky.
inline constexpr double kSunnyYield = 5.5;
inline constexpr double kPartlyCloudyYield = 2.8;
inline constexpr double kOvercastYield = 0.8;

}  // namespace kalvo::engine
