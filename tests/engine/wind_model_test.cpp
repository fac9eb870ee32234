#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include <gmock/gmock.h>

#include "engine/calculation_engine.h"

namespace kalvo::engine {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Ge;

// Latitude and longitude of no place in particular: absent.
constexpr std::optional<double> kAbsent;

std::int64_t total(const ClassCounts& counts) {
    return std::accumulate(counts.begin(), counts.end(), std::int64_t{0});
}

WindDistribution standardYear(double kwh) {
    return CalculationEngine::calculateMonthlyWindDistribution(
        {.kwh = kwh, .lat = kAbsent, .lon = kAbsent, .region = ""});
}

TEST(MonthlyFactors, AreAlpineByRegionOrByPosition) {
    struct Case {
        PlaceArgs place;
        bool isAlpine;
    };
    for (const auto& [place, isAlpine] : {
             Case{{.lat = 37.0, .lon = 15.0, .region = "Valle d'Aosta"}, true},
             Case{{.lat = kAbsent, .lon = kAbsent, .region = "TRENTINO-Alto Adige"}, true},
             Case{{.lat = 46.0, .lon = 11.0, .region = "Lombardia"}, true},
             Case{{.lat = 46.0, .lon = 12.0, .region = "Friuli"}, false},
             Case{{.lat = 45.8, .lon = 7.0, .region = "Piemonte"}, false},
             Case{{.lat = 46.0, .lon = kAbsent, .region = ""}, true},
             Case{{.lat = kAbsent, .lon = 7.0, .region = ""}, false},
         }) {
        // January is windier than the year only in the standard profile.
        EXPECT_EQ(CalculationEngine::getMonthlyFactors(place).front(), isAlpine ? 0.75 : 1.12)
            << place.region << " " << place.lat.value_or(0) << " " << place.lon.value_or(0);
    }
}

TEST(MonthlyWindDistribution, FollowsTheRayleighLaw) {
    const WindDistribution moderate = standardYear(3200);
    EXPECT_THAT(moderate.at("Gen"), ElementsAre(1, 4, 11, 13, 2, 0, 0));
    EXPECT_THAT(moderate.at("Lug"), ElementsAre(2, 7, 14, 8, 0, 0, 0));
    EXPECT_THAT(standardYear(5900).at("Gen"), ElementsAre(0, 1, 3, 10, 9, 5, 3));
}

TEST(MonthlyWindDistribution, EveryMonthAddsUpToItsLength) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double kwh : {-1e300, 0.0, 600.0, 733.0, 2800.0, 3200.0, 12345.6, 1e300, kInfinity,
                             -kInfinity, std::nan("")}) {
        const WindDistribution distribution = standardYear(kwh);
        ASSERT_EQ(distribution.size(), 12U);
        for (std::size_t month = 0; month < 12; ++month) {
            const ClassCounts& days =
                distribution.at(std::string(CalculationEngine::months[month]));
            EXPECT_EQ(days.size(), 7U);
            EXPECT_THAT(days, Each(Ge(0)));
            EXPECT_EQ(total(days), CalculationEngine::daysInMonth[month]) << kwh;
        }
    }
}

TEST(MonthlyWindDistribution, WithoutWindEveryDayIsCalm) {
    // The yield at which the mean wind is exactly zero.
    const double calm = 2800 - 8.0 * 3100 / 12;
    for (const double kwh : {calm, std::nan("")}) {
        EXPECT_THAT(standardYear(kwh).at("Dic"), ElementsAre(31, 0, 0, 0, 0, 0, 0));
        for (const auto& [sector, hours] : CalculationEngine::calculateWindRoseData(
                 {.cityLabel = "", .kwh = kwh, .lat = kAbsent, .lon = kAbsent, .region = ""})) {
            EXPECT_EQ(hours.front(), total(hours)) << sector;
        }
    }
}

}  // namespace
}  // namespace kalvo::engine
