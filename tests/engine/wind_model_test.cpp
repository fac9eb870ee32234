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

WindRoseData rose(std::string_view label, std::string_view region, double kwh = 3200) {
    return CalculationEngine::calculateWindRoseData(
        {.cityLabel = label, .kwh = kwh, .lat = kAbsent, .lon = kAbsent, .region = region});
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

TEST(MonthlyWindDistribution, RoundingIsMadeGoodInTheFirstOfTheLargestClasses) {
    // Mean 8 km/h, February: 0.97, 4.57, 10.87, 10.77, 0.81 and 0.01 days are one too many.
    EXPECT_THAT(standardYear(2800).at("Feb"), ElementsAre(1, 5, 10, 11, 1, 0, 0));
    // Mean 23 km/h, October: 0.18, 0.91, 3.04, 9.36, 8.94, 5.42 and 3.16 days are one too few.
    EXPECT_THAT(standardYear(6675).at("Ott"), ElementsAre(0, 1, 3, 10, 9, 5, 3));
}

TEST(MonthlyWindDistribution, WithoutWindEveryDayIsCalm) {
    // The yield at which the mean wind is exactly zero.
    const double calm = 2800 - 8.0 * 3100 / 12;
    for (const double kwh : {calm, std::nan("")}) {
        EXPECT_THAT(standardYear(kwh).at("Dic"), ElementsAre(31, 0, 0, 0, 0, 0, 0));
        for (const auto& [sector, hours] : rose("Calma (XX)", "Lazio", kwh)) {
            EXPECT_EQ(hours.front(), total(hours)) << sector;
        }
    }
}

TEST(WindRose, FollowsItsDrawsAndTheRayleighLaw) {
    // The label's hash is 0xbfe0110f57bad128, its absolute value modulo 2^31 675622616. The first
    // number drawn is 0.59994, so north weighs 0.02 + 0.02 x 0.59994 = 0.032; south-east, which
    // prevails, weighs 0.25126 and its neighbor 0.13243 of 1.22506. The mean wind is 20 km/h.
    const WindRoseData data = rose("Roma (RM)", "Lazio", 5900);
    EXPECT_THAT(data.at(0), ElementsAre(2, 13, 39, 98, 57, 17, 3));        // of 228.8 hours
    EXPECT_THAT(data.at(6), ElementsAre(8, 43, 146, 471, 498, 351, 280));  // of 1796.7
    EXPECT_THAT(data.at(7), ElementsAre(10, 52, 163, 403, 237, 70, 12));   // of 947.0
}

TEST(WindRose, BlowsFromThePrevailingSectorsOfTheRegion) {
    struct Case {
        const char* region;
        std::vector<int> prevailing;
        std::vector<int> neighbors;
    };
    for (const auto& [region, prevailing, neighbors] : {
             Case{"Sardegna", {12, 14}, {11, 13, 15}},
             Case{"SICILIA", {6, 14}, {5, 7, 13, 15}},
             Case{"Liguria", {0, 10}, {1, 9, 11, 15}},
             Case{"Friuli-Venezia Giulia", {2, 6}, {1, 3, 5, 7}},
             Case{"Lazio", {6, 14}, {5, 7, 13, 15}},
         }) {
        const WindRoseData data = rose("Prova (XX)", region);
        ASSERT_EQ(data.size(), 16U);
        std::vector<int> sectors(16);
        std::iota(sectors.begin(), sectors.end(), 0);
        std::sort(sectors.begin(), sectors.end(), [&data](int one, int other) {
            return total(data.at(one)) > total(data.at(other));
        });
        const auto middle = sectors.begin() + 2;
        const auto end = middle + static_cast<std::ptrdiff_t>(neighbors.size());
        std::sort(sectors.begin(), middle);
        std::sort(middle, end);
        EXPECT_EQ(std::vector(sectors.begin(), middle), prevailing) << region;
        EXPECT_EQ(std::vector(middle, end), neighbors) << region;
        EXPECT_NEAR(std::accumulate(data.begin(), data.end(), 0.0,
                                    [](double sum, const auto& sector) {
                                        return sum + static_cast<double>(total(sector.second));
                                    }),
                    8760, 8);
    }
}

TEST(WindRose, DependsOnTheLabelAlone) {
    EXPECT_NE(rose("Roma (RM)", "Lazio"), rose("Rieti (RI)", "Lazio"));
    EXPECT_EQ(
        CalculationEngine::calculateWindRoseData(
            {.cityLabel = "Roma (RM)", .kwh = 3200, .lat = 41.9, .lon = 12.5, .region = "Lazio"}),
        rose("Roma (RM)", "Lazio"));
}

}  // namespace
}  // namespace kalvo::engine
