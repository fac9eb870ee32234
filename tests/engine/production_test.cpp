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

TEST(Production, GivesEveryClassItsOutput) {
    struct Case {
        std::size_t windClass;
        double kwh1kw;  // of four days in this class
        double kwh2kw;
        double kwh3kw;
    };
    for (const auto& [windClass, kwh1kw, kwh2kw, kwh3kw] :
         {Case{0, 0, 0, 0}, Case{1, 0, 0, 0}, Case{2, 1, 2, 0}, Case{3, 48, 96, 144},
          Case{4, 96, 192, 288}, Case{5, 96, 192, 192}, Case{6, 96, 192, 192}}) {
        WindDistribution twoMonths{{"Feb", ClassCounts(7)}, {"Lug", ClassCounts(7)}};
        twoMonths["Feb"][windClass] = 3;
        twoMonths["Lug"][windClass] = 1;
        EXPECT_EQ(production(twoMonths, 1), kwh1kw) << windClass;
        EXPECT_EQ(production(twoMonths, 2), kwh2kw) << windClass;
        EXPECT_EQ(production(twoMonths, 3), kwh3kw) << windClass;
        EXPECT_EQ(production(twoMonths, 4), kwh3kw) << windClass;
        EXPECT_EQ(production(twoMonths, 0), kwh3kw) << windClass;
    }
    // Halves of a kWh go away from zero: two days of class 2.
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
