#include <array>
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

TEST(SolarModel, EveryDayHasOneSky) {
    for (const double lat : {45.0, 42.5, 38.0}) {
        const SolarData data = sky(lat, "");
        for (std::size_t month = 0; month < 12; ++month) {
            EXPECT_EQ(data.sunny[month] + data.partlyCloudy[month] + data.overcast[month],
                      CalculationEngine::daysInMonth[month])
                << lat << " " << month;
        }
        EXPECT_EQ(data.precip.size(), 12U);
    }
    // Days with precipitation are counted apart; their sums, added up from the tables by hand.
    EXPECT_EQ(year(sky(45.0, "").precip), 114);
    EXPECT_EQ(year(sky(42.5, "").precip), 83);
    EXPECT_EQ(year(sky(38.0, "").precip), 61);
}

TEST(SolarProduction, FollowsTheSky) {
    struct Case {
        double lat;
        std::array<double, 3> kwh;  // of 1, 2 and 3 kWp
    };
    for (const auto& [lat, kwh] : {Case{45.0, {1174, 2348, 3522}}, Case{42.5, {1289, 2579, 3868}},
                                   Case{38.0, {1421, 2841, 4262}}}) {
        for (int kw = 1; kw <= 3; ++kw) {
            EXPECT_EQ(CalculationEngine::calculateSolarProduction(sky(lat, ""), kw),
                      kwh[static_cast<std::size_t>(kw - 1)]);
        }
    }
    EXPECT_EQ(CalculationEngine::calculateSolarProduction(SolarData{}, 3), 0);
    // 0.5 kWh rounds away from zero.
    const SolarData half{.sunny = {1.0 / 11}, .partlyCloudy = {}, .overcast = {}, .precip = {9}};
    EXPECT_EQ(CalculationEngine::calculateSolarProduction(half, 1), 1);
}

}  // namespace
}  // namespace kalvo::engine
