#include "engine/monthly_production.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "engine/calculation_engine.h"
#include "engine/class_output.h"

namespace kalvo::engine {

namespace {

/// What the months' shares are in proportion to. Integers, because doubles lose the remainders
/// that decide beyond 2^53.
using Weights = std::array<WholeNumber, 12>;

/// Splits a whole number in proportion to the weights (in equal parts where they cancel out) by
/// the method of the largest remainder, also known as Hamilton's: every month gets its quota
/// rounded down, and what is left goes, one each, to the largest remainders, of equal ones to the
/// earlier month.
MonthlyProduction apportioned(const WholeNumber& total, Weights weights) {
    WholeNumber sum = std::accumulate(weights.begin(), weights.end(), WholeNumber(0));
    if (sum == 0) {
        weights.fill(1);
        sum = 12;
    }
    MonthlyProduction months;
    Weights remainders;
    WholeNumber left = total;
    for (std::size_t month = 0; month < weights.size(); ++month) {
        WholeNumber& share = months.kwh[month];
        const WholeNumber product = weights[month] * total;
        divide_qr(product, sum, share, remainders[month]);
        // Division rounds toward zero.
        if (remainders[month] != 0 && (product < 0) != (sum < 0)) {
            --share;
            remainders[month] += sum;
        }
        left -= share;
    }
    std::array<std::size_t, 12> order{};
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        return abs(remainders[a]) > abs(remainders[b]);
    });
    for (std::size_t i = 0; i < static_cast<std::size_t>(left); ++i) ++months.kwh[order[i]];
    return months;
}

/// The days that a month has under a sky, times 2^1126, which makes an integer of any finite
/// double; none where the list is too short.
WholeNumber daysIn(const std::vector<double>& days, std::size_t month) {
    if (month >= days.size()) return 0;
    constexpr int kMantissaBits = 53;
    constexpr int kScaleBits = 1126;  // 1073 for the smallest exponent, and the mantissa
    int exponent = 0;
    const double fraction = std::frexp(days[month], &exponent);
    const WholeNumber mantissa = static_cast<std::int64_t>(std::ldexp(fraction, kMantissaBits));
    return mantissa << (exponent - kMantissaBits + kScaleBits);
}

}  // namespace

std::optional<MonthlyProduction> CalculationEngine::calculateMonthlyWindProduction(
    const WindDistribution& dist, int kw, std::int64_t quantity) {
    const double total =
        calculateProductionFromDistribution(dist, kw) * static_cast<double>(quantity);
    if (!std::isfinite(total)) return std::nullopt;
    const std::array<double, WindRange::kCount> output = kwhPerDay(kw);
    Weights weights;
    for (std::size_t month = 0; month < months.size(); ++month) {
        const auto found = dist.find(months[month]);
        if (found == dist.end()) continue;
        for (std::size_t k = 0; k < std::min(found->second.size(), output.size()); ++k) {
            // Every output is a whole number of quarters.
            weights[month] += WholeNumber(found->second[k]) * static_cast<int>(4 * output[k]);
        }
    }
    return apportioned(WholeNumber(total), std::move(weights));
}

std::optional<MonthlyProduction> CalculationEngine::calculateMonthlySolarProduction(
    const SolarData& solarData, int kw, std::int64_t quantity) {
    const double total = calculateSolarProduction(solarData, kw) * static_cast<double>(quantity);
    if (!std::isfinite(total)) return std::nullopt;
    const auto tenths = [](double kwh) { return static_cast<int>(std::lround(10 * kwh)); };
    Weights weights;
    for (std::size_t month = 0; month < months.size(); ++month) {
        weights[month] = daysIn(solarData.sunny, month) * tenths(kSunnyYield) +
                         daysIn(solarData.partlyCloudy, month) * tenths(kPartlyCloudyYield) +
                         daysIn(solarData.overcast, month) * tenths(kOvercastYield);
    }
    return apportioned(WholeNumber(total), std::move(weights));
}

}  // namespace kalvo::engine
