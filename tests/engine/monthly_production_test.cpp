#include "engine/monthly_production.h"

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include <gmock/gmock.h>

#include "engine/calculation_engine.h"

namespace kalvo::engine {
namespace {

using testing::ElementsAre;

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

WholeNumber sumOf(const std::optional<MonthlyProduction>& months) {
    return std::accumulate(months->kwh.begin(), months->kwh.end(), WholeNumber(0));
}

/// A year whose months have so many days of class 2, from January on: a quarter of a kWh each.
WindDistribution quarters(std::initializer_list<std::int64_t> days) {
    WindDistribution dist;
    std::size_t month = 0;
    for (const std::int64_t count : days) {
        dist[std::string(CalculationEngine::months[month++])] = {0, 0, count, 0, 0, 0, 0};
    }
    return dist;
}

std::optional<MonthlyProduction> wind(const WindDistribution& dist, std::int64_t quantity = 1) {
    return CalculationEngine::calculateMonthlyWindProduction(dist, 1, quantity);
}

TEST(MonthlyProductionTest, GivesWhatIsLeftToTheLargestRemaindersAndOfEqualOnesToTheEarlierMonth) {
    // 9 quarters are 2.25, rounded to 2: quotas 5, 3, 1 ninths of 2 are 1.11, 0.67 and 0.22.
    EXPECT_THAT(wind(quarters({5, 3, 1}))->kwh, ElementsAre(1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    // 12 months of one quarter make 3: every quota is 0.25, so the first three get it.
    EXPECT_THAT(wind(quarters({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}))->kwh,
                ElementsAre(1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(wind({})->kwh, testing::Each(0));
    // Rounding comes before the number: 0.25 rounds to 0, and a thousand of nothing is nothing.
    EXPECT_THAT(wind(quarters({1}), 1000)->kwh, testing::Each(0));
    // What belongs to no month is spread over all: 14 = 12 + 2.
    EXPECT_THAT(wind({{"?", {0, 0, 56, 0, 0, 0, 0}}})->kwh,
                ElementsAre(2, 2, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1));
}

TEST(MonthlyProductionTest, KeepsRemaindersThatDoublesLose) {
    // 2 * (2^63 - 1) days of 24 kWh count as 24 * 2^64 kWh; a third of the days is in January. The
    // quotas 8 * 2^64 and 16 * 2^64 are whole, which no double could tell from their neighbors.
    const WholeNumber total = WholeNumber(24) << 64;
    const auto year = [](std::int64_t first, std::int64_t second, std::int64_t third) {
        return WindDistribution{{"Gen", {0, 0, 0, 0, first, 0, 0}},
                                {"Feb", {0, 0, 0, 0, second, 0, 0}},
                                {"Mar", {0, 0, 0, 0, third, 0, 0}}};
    };
    const auto uneven = wind(year(kMost, kMost - 1, 1));
    EXPECT_EQ(sumOf(uneven), total);
    EXPECT_GT(uneven->kwh[0], uneven->kwh[1]) << "a day in 2^63";
}

TEST(MonthlyProductionTest, OfTheSunFollowsItsSkies) {
    // 5.5 + 2 * 2.8 + 0.8 = 11.9, of 3 kWp 35.7, rounded 36, times 2: 72, of which January has
    // 5.5 / 11.9 (33.28), February 5.6 / 11.9 (33.88) and March 0.8 / 11.9 (4.84).
    const SolarData skies{.sunny = {1}, .partlyCloudy = {0, 2}, .overcast = {0, 0, 1}, .precip{9}};
    EXPECT_THAT(CalculationEngine::calculateMonthlySolarProduction(skies, 3, 2)->kwh,
                ElementsAre(33, 34, 5, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    const SolarData huge{.sunny = {1e300, 1e-300}, .partlyCloudy{}, .overcast{}, .precip{}};
    EXPECT_EQ(sumOf(CalculationEngine::calculateMonthlySolarProduction(huge, 1, 7)),
              WholeNumber(std::round(5.5 * 1e300) * 7));
    const SolarData endless{.sunny = {1e308, 1e308}, .partlyCloudy{}, .overcast{}, .precip{}};
    EXPECT_EQ(CalculationEngine::calculateMonthlySolarProduction(endless, 1, 1), std::nullopt);
}

TEST(MonthlyProductionTest, AddsUpForAnyCounts) {
    constexpr std::uint64_t kSeed = 20261123;
    SCOPED_TRACE(kSeed);
    std::mt19937_64 random(kSeed);
    for (int round = 0; round < 300; ++round) {
        WindDistribution dist;
        for (const std::string_view month : CalculationEngine::months) {
            ClassCounts counts;
            // Of any magnitude: most 64-bit numbers have 18 digits. Some are negative.
            for (int k = 0; k < 7; ++k) {
                counts.push_back(static_cast<std::int64_t>(random()) >> (random() % 64));
            }
            dist[std::string(month)] = counts;
        }
        const auto quantity = static_cast<std::int64_t>(random() >> (1 + random() % 63));
        const int kw = 1 + round % 3;
        const auto months = CalculationEngine::calculateMonthlyWindProduction(dist, kw, quantity);
        ASSERT_EQ(sumOf(months),
                  WholeNumber(CalculationEngine::calculateProductionFromDistribution(dist, kw) *
                              static_cast<double>(quantity)));
    }
}

}  // namespace
}  // namespace kalvo::engine
