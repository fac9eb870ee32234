#include "engine/calculation_engine.h"

#include <algorithm>
#include <cstddef>

#include "engine/wind_scale.h"

namespace kalvo::engine {

using graphics::Color;

const std::array<std::string_view, 12> CalculationEngine::months{
    "Gen", "Feb", "Mar", "Apr", "Mag", "Giu", "Lug", "Ago", "Set", "Ott", "Nov", "Dic"};

namespace {

/// A stop of the wind map's ramp, channels from 0 to 255.
struct RampStop {
    double red;
    double green;
    double blue;
};

constexpr std::array<RampStop, 5> kWindRamp{{
    {180, 220, 255},
    {130, 240, 210},
    {190, 240, 100},
    {255, 150, 30},
    {255, 30, 15},
}};

double between(double start, double end, double fraction) {
    return (start + (end - start) * fraction) / 255.0;
}

}  // namespace

Color CalculationEngine::getWindColor(double kwh) {
    double position = (kwh - kReferenceYield) / kYieldSpan;
    // Negated so that a yield that is not a number counts as the strongest.
    if (!(position < 1)) position = 1;
    if (position < 0) position = 0;

    constexpr std::size_t kSpans = kWindRamp.size() - 1;
    const std::size_t span =
        std::min(static_cast<std::size_t>(position * kSpans), std::size_t{kSpans - 1});
    const double fraction = (position - static_cast<double>(span) / kSpans) * kSpans;
    const RampStop& low = kWindRamp[span];
    const RampStop& high = kWindRamp[span + 1];
    return {between(low.red, high.red, fraction), between(low.green, high.green, fraction),
            between(low.blue, high.blue, fraction), 1};
}

}  // namespace kalvo::engine
