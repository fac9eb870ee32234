#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "engine/calculation_engine.h"

namespace kalvo::engine {
namespace {

double production(const WindDistribution& dist, int kw) {
    return CalculationEngine::calculateProductionFromDistribution(dist, kw);
}

TEST(Production, OfAnyOtherSizeIsThatOf3kW) {
    const WindDistribution days{{"Feb", {9, 9, 9, 3, 2, 1, 0}}, {"Lug", {9, 9, 9, 1, 0, 0, 1}}};
    // 4 x 36 + 2 x 72 + 2 x 48.
    for (const int kw : {0, 3, 4}) EXPECT_EQ(production(days, kw), 384) << kw;
}

TEST(Production, RoundsHalvesAwayFromZero) {
    // Two days of class 2 at 0.25 kWh.
    EXPECT_EQ(production({{"Gen", {0, 0, 2, 0, 0, 0, 0}}}, 1), 1);
    EXPECT_EQ(production({{"Gen", {0, 0, -2, 0, 0, 0, 0}}}, 1), -1);
}

TEST(Production, TakesWhateverADistributionHolds) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(production({}, 1), 0);
    EXPECT_EQ(production({{"Gen", {}}, {"Feb", {9, 9, 4}}}, 1), 1);
    EXPECT_EQ(production({{"Gen", {0, 0, 0, 0, 1, 0, 0, kMost}}}, 1), 24);
    EXPECT_DOUBLE_EQ(
        production({{"Gen", {0, 0, 0, kMost, 0, 0, 0}}, {"Feb", {0, 0, 0, kMost, 0, 0, 0}}}, 2),
        48 * 9223372036854775807.0);
    EXPECT_DOUBLE_EQ(production({{"Gen", {0, 0, 0, 0, kLeast, kLeast, 0}}}, 1),
                     48 * -9223372036854775808.0);
}

TEST(FormatKWh, GroupsThousandsAndRoundsTiesToEven) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Case {
        double kwh;
        const char* text;
    };
    for (const auto& [kwh, text] :
         {Case{0, "0"}, Case{999, "999"}, Case{1000, "1.000"}, Case{1174, "1.174"},
          Case{12345, "12.345"}, Case{1234567, "1.234.567"}, Case{2500.5, "2.500"},
          Case{2501.5, "2.502"}, Case{0.5, "0"}, Case{999.5, "1.000"}, Case{-0.3, "0"},
          Case{-999, "-999"}, Case{-1234.4, "-1.234"},
          Case{9007199254740992, "9.007.199.254.740.992"},
          Case{1e21, "1.000.000.000.000.000.000.000"}, Case{kInfinity, "inf"},
          Case{-kInfinity, "-inf"}, Case{std::nan(""), "nan"}, Case{-std::nan(""), "nan"}}) {
        EXPECT_EQ(CalculationEngine::formatKWh(kwh), text);
    }
}

}  // namespace
}  // namespace kalvo::engine
