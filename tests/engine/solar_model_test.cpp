#include <numeric>

#include <gtest/gtest.h>

#include "engine/calculation_engine.h"

namespace kalvo::engine {
namespace {

constexpr std::optional<double> kAbsent;

SolarData sky(std::optional<double> lat, std::string_view region) {
    return CalculationEngine::calculateOfflineSolarData(
        {.lat = lat, .lon = 12.0, .region = region});
}

double year(const std::vector<double>& days) {
    return std::accumulate(days.begin(), days.end(), 0.0);
}

TEST(SolarModel, ChoosesTheTableByRegionAndLatitude) {
    enum Table { kNorth = 103, kCenter = 139, kSouth = 178 };  // sunny days of the year
    struct Case {
        std::optional<double> lat;
        const char* region;
        Table table;
    };
    for (const auto& [lat, region, table] : {
             Case{40.9, "Sardegna", kSouth},
             Case{46.5, "SICILIA", kSouth},
             Case{41.0, "Lazio", kSouth},
             Case{42.0, "Lazio", kCenter},
             Case{44.0, "Lazio", kCenter},
             Case{44.0, "Campania", kCenter},
             Case{41.0, "campania", kSouth},
             Case{43.6, "Toscana", kNorth},
             Case{43.4, "Toscana", kCenter},
             Case{41.5, "Molise", kCenter},
             Case{41.4, "Molise", kSouth},
             Case{43.5, "Toscana", kNorth},
             Case{kAbsent, "Piemonte", kCenter},
             Case{kAbsent, "Sicilia", kSouth},
         }) {
        EXPECT_EQ(year(sky(lat, region).sunny), table) << region << " " << lat.value_or(0);
    }
}

TEST(SolarProduction, RoundsAndTakesNoSkyForNone) {
    EXPECT_EQ(CalculationEngine::calculateSolarProduction(SolarData{}, 3), 0);
    // 0.5 kWh rounds away from zero; precipitation yields nothing.
    const SolarData half{.sunny = {1.0 / 11}, .partlyCloudy = {}, .overcast = {}, .precip = {9}};
    EXPECT_EQ(CalculationEngine::calculateSolarProduction(half, 1), 1);
}

}  // namespace
}  // namespace kalvo::engine
