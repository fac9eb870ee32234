#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/climate_data.h"
#include "graphics/color.h"

namespace kalvo::engine {

/// A place as the climate models see it. Yields are on the catalogue's scale, on which 2800 kWh a
/// year mean a mean wind of 8 km/h.
struct MonthlyWindArgs {
    double kwh;                 // kWh per year
    std::optional<double> lat;  // degrees north
    std::optional<double> lon;  // degrees east
    std::string_view region;
};

struct WindRoseArgs {
    std::string_view cityLabel;  // seeds the variation between directions
    double kwh;                  // kWh per year, catalogue scale
    std::optional<double> lat;   // degrees north; without influence
    std::optional<double> lon;   // degrees east; without influence
    std::string_view region;
};

struct PlaceArgs {
    std::optional<double> lat;  // degrees north
    std::optional<double> lon;  // degrees east
    std::string_view region;
};

struct MonthlyProduction;

/// The models behind the figures: pure functions without state.
class CalculationEngine {
 public:
    CalculationEngine() = delete;

    static const std::array<std::string_view, 12> months;  // "Gen" to "Dic"
    static constexpr std::array<int, 12> daysInMonth{31, 28, 31, 30, 31, 30,
                                                     31, 31, 30, 31, 30, 31};
    /// Net over gross production, for all that the models do not see (losses, obstacles,
    /// standstill): a margin fixed by the product, not a measured ratio.
    static constexpr double correctionCoefficient = 0.7;

    /// Returns the wind map's color for a yield (kWh per year, catalogue scale): a ramp from pale
    /// blue (2800 and less) over yellow-green and orange to red (5900 and more).
    [[nodiscard]] static graphics::Color getWindColor(double kwh);

    /// Returns the mean wind of each month over that of the year: the alpine profile (by the words
    /// "valle" and "trentino" in the region, or north of 45.8 and west of 12 degrees) or the
    /// standard one.
    [[nodiscard]] static const std::array<double, 12>& getMonthlyFactors(const PlaceArgs& place);

    /// Returns the days per wind-speed class for each month, from a Rayleigh distribution round the
    /// month's mean wind; every month adds up to its length.
    [[nodiscard]] static WindDistribution calculateMonthlyWindDistribution(
        const MonthlyWindArgs& args);

    /// Returns the hours of the year per direction and wind-speed class, about 8760 in all: a draw
    /// round the region's prevailing directions, not a measurement. The same label
    /// gives the same rose in every run.
    [[nodiscard]] static WindRoseData calculateWindRoseData(const WindRoseArgs& args);

    /// Returns the sky conditions of the north, the center or the south of Italy, by latitude and
    /// region.
    [[nodiscard]] static SolarData calculateOfflineSolarData(const PlaceArgs& place);

    /// Returns the kWh per year of one turbine of `kw` (1, 2; any other counts as 3), a whole
    /// number.
    [[nodiscard]] static double calculateProductionFromDistribution(const WindDistribution& dist,
                                                                    int kw);

    /// Returns the kWh per year of a photovoltaic plant of `kw` kWp, a whole number.
    [[nodiscard]] static double calculateSolarProduction(const SolarData& solarData, int kw);

    /// The gross production of `quantity` turbines of `kw` split over the months as the days of
    /// their wind-speed classes yield (defined in engine/monthly_production.h). The months add up
    /// exactly to `calculateProductionFromDistribution(dist, kw) * quantity`; nothing when that is
    /// no finite number.
    [[nodiscard]] static std::optional<MonthlyProduction> calculateMonthlyWindProduction(
        const WindDistribution& dist, int kw, std::int64_t quantity);

    /// The same of `quantity` photovoltaic plants of `kw` kWp: the months add up exactly to
    /// `calculateSolarProduction(solarData, kw) * quantity`.
    [[nodiscard]] static std::optional<MonthlyProduction> calculateMonthlySolarProduction(
        const SolarData& solarData, int kw, std::int64_t quantity);

    /// Writes an energy for display: no fraction (ties to even), thousands grouped with ".".
    [[nodiscard]] static std::string formatKWh(double kwh);
};

}  // namespace kalvo::engine
