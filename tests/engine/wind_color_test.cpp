#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "engine/calculation_engine.h"

namespace kalvo::engine {
namespace {

using graphics::Color;

Color rgb(double red, double green, double blue) { return {red / 255, green / 255, blue / 255, 1}; }

TEST(WindColor, RunsThroughTheStopsOfItsRamp) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Case {
        double kwh;
        Color color;
    };
    for (const auto& [kwh, color] :
         {Case{-kInfinity, rgb(180, 220, 255)}, Case{0, rgb(180, 220, 255)},
          Case{2800, rgb(180, 220, 255)}, Case{3187.5, rgb(155, 230, 232.5)},
          Case{3575, rgb(130, 240, 210)}, Case{3962.5, rgb(160, 240, 155)},
          Case{4350, rgb(190, 240, 100)}, Case{4737.5, rgb(222.5, 195, 65)},
          Case{5125, rgb(255, 150, 30)}, Case{5512.5, rgb(255, 90, 22.5)},
          Case{5900, rgb(255, 30, 15)}, Case{10000, rgb(255, 30, 15)},
          Case{kInfinity, rgb(255, 30, 15)}, Case{std::nan(""), rgb(255, 30, 15)}}) {
        EXPECT_EQ(CalculationEngine::getWindColor(kwh), color) << kwh;
    }
}

}  // namespace
}  // namespace kalvo::engine
