#include <algorithm>
#include <cmath>
#include <numeric>

#include <fmt/format.h>

#include "engine/calculation_engine.h"
#include "engine/class_output.h"

namespace kalvo::engine {

namespace {

/// The year's days in each class. Counts may come from a web page with any value, and the sum of
/// two of them may be no 64-bit integer; a class that a faulty list lacks has no days.
std::array<double, WindRange::kCount> daysPerClass(const WindDistribution& dist) {
    std::array<double, WindRange::kCount> days{};
    for (const auto& [month, counts] : dist) {
        for (std::size_t k = 0; k < std::min(counts.size(), days.size()); ++k) {
            days[k] += static_cast<double>(counts[k]);
        }
    }
    return days;
}

double sum(const std::vector<double>& numbers) {
    return std::accumulate(numbers.begin(), numbers.end(), 0.0);
}

}  // namespace

double CalculationEngine::calculateProductionFromDistribution(const WindDistribution& dist,
                                                              int kw) {
    const std::array<double, WindRange::kCount> days = daysPerClass(dist);
    const std::array<double, WindRange::kCount> output = kwhPerDay(kw);
    return std::round(output[2] * days[2] + output[3] * days[3] + output[4] * days[4] +
                      output[5] * (days[5] + days[6]));
}

double CalculationEngine::calculateSolarProduction(const SolarData& solarData, int kw) {
    const double perKw = kSunnyYield * sum(solarData.sunny) +
                         kPartlyCloudyYield * sum(solarData.partlyCloudy) +
                         kOvercastYield * sum(solarData.overcast);
    return std::round(kw * perKw);
}

std::string CalculationEngine::formatKWh(double kwh) {
    if (std::isnan(kwh)) return "nan";
    // Adding zero takes the sign from a rounded -0.3.
    std::string text = fmt::format("{:.0f}", std::nearbyint(kwh) + 0.0);
    if (std::isinf(kwh)) return text;
    const std::size_t firstDigit = text.front() == '-' ? 1 : 0;
    for (std::size_t end = text.size(); end > firstDigit + 3; end -= 3) {
        text.insert(end - 3, 1, '.');
    }
    return text;
}

}  // namespace kalvo::engine
