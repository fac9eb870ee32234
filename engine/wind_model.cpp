#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <random>

#include "engine/calculation_engine.h"
#include "engine/folded_region.h"
#include "engine/wind_range.h"
#include "engine/wind_scale.h"

namespace kalvo::engine {

namespace {

using ClassProbabilities = std::array<double, WindRange::kCount>;

constexpr std::size_t kMonths = 12;
constexpr std::size_t kSectors = 16;

// Mean wind of each month over that of the year, January first. Profiles of this model, not of a
// measured climate: windy winters in general, windy springs in the Alps.
constexpr std::array<double, kMonths> kStandardFactors{1.12, 1.18, 1.15, 1.08, 0.96, 0.86,
                                                       0.80, 0.84, 0.90, 1.02, 1.05, 1.09};
constexpr std::array<double, kMonths> kAlpineFactors{0.75, 0.85, 1.15, 1.25, 1.20, 1.15,
                                                     1.10, 1.05, 0.95, 0.90, 0.85, 0.75};

/// The probability of each wind-speed class under a Rayleigh distribution round a mean speed
/// (km/h): P(speed > v) = exp(-(v / c)^2). For that mean the scale c is 2 / sqrt(pi) = 1.128 times
/// it, rounded as is customary in wind energy (J. F. Manwell et al., "Wind Energy Explained", 2009,
/// section 2.4).
ClassProbabilities rayleighProbabilities(double meanSpeed) {
    constexpr double kScaleOverMean = 1.128;
    // The last class takes in every stronger wind too.
    constexpr std::array<double, WindRange::kCount> kUpperEdges{2, 5, 10, 20, 30, 40, 999};
    const double scale = meanSpeed * kScaleOverMean;
    // Without wind, or with a yield that is not a number, every day is a calm one.
    if (scale == 0 || std::isnan(scale)) return {1};

    ClassProbabilities probabilities;
    double aboveLowerEdge = 1;
    for (std::size_t k = 0; k < probabilities.size(); ++k) {
        const double ratio = kUpperEdges[k] / scale;
        // The exponential of less underflows to zero, which takes the library its slow path to
        // find out.
        const double aboveUpperEdge = ratio < 28 ? std::exp(-(ratio * ratio)) : 0;
        probabilities[k] = aboveLowerEdge - aboveUpperEdge;
        aboveLowerEdge = aboveUpperEdge;
    }
    return probabilities;
}

/// A total split by probabilities into whole numbers; what rounding lost or won goes to the first
/// of the largest, so that they add up to the total.
std::array<long, WindRange::kCount> apportioned(long total,
                                                const ClassProbabilities& probabilities) {
    std::array<long, WindRange::kCount> counts{};
    for (std::size_t k = 0; k < counts.size(); ++k) {
        counts[k] = std::lround(probabilities[k] * static_cast<double>(total));
    }
    *std::max_element(counts.begin(), counts.end()) +=
        total - std::accumulate(counts.begin(), counts.end(), 0L);
    return counts;
}

/// The months' positions in the ascending order of their abbreviations, the order in which a
/// distribution keeps them.
std::array<std::size_t, kMonths> monthsByName() {
    std::array<std::size_t, kMonths> order{};
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [](std::size_t one, std::size_t other) {
        return CalculationEngine::months[one] < CalculationEngine::months[other];
    });
    return order;
}

/// FNV-1a, 64 bits (http://www.isthe.com/chongo/tech/comp/fnv/): the same in every run and on
/// every machine.
std::uint64_t labelHash(std::string_view label) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : label) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 0x100000001b3;
    }
    return hash;
}

/// The linear congruential generator of the C standard's example for rand (ISO/IEC 9899, 7.22.2.1),
/// modulo 2^31.
using RoseGenerator =
    std::linear_congruential_engine<std::uint64_t, 1103515245, 12345, std::uint64_t{1} << 31>;

/// The next number from 0 to 1.
double draw(RoseGenerator& generator) {
    return static_cast<double>(generator()) / static_cast<double>(RoseGenerator::max());
}

/// The two sectors that the wind blows from most: an assumption of this model for each region, like
/// the weights and factors below.
struct PrevailingSectors {
    std::size_t first;
    std::size_t second;

    [[nodiscard]] bool include(std::size_t sector) const {
        return sector == first || sector == second;
    }
    [[nodiscard]] bool areNextTo(std::size_t sector) const {
        return include((sector + 1) % kSectors) || include((sector + kSectors - 1) % kSectors);
    }
};

PrevailingSectors prevailingSectors(std::string_view region) {
    const FoldedRegion name(region);
    if (name.contains("sardegna")) return {12, 14};
    if (name.contains("sicilia")) return {6, 14};
    if (name.contains("liguria")) return {10, 0};
    if (name.contains("friuli")) return {6, 2};
    return {6, 14};
}

/// Weight of each sector, not normalized. The draws of a sector shift those of all later ones.
std::array<double, kSectors> sectorWeights(const PrevailingSectors& prevailing,
                                           RoseGenerator generator) {
    std::array<double, kSectors> weights{};
    for (std::size_t sector = 0; sector < kSectors; ++sector) {
        weights[sector] = 0.02 + 0.02 * draw(generator);
        if (prevailing.include(sector)) {
            weights[sector] += 0.18 + 0.1 * draw(generator);
        } else if (prevailing.areNextTo(sector)) {
            weights[sector] += 0.05 + 0.05 * draw(generator);
        }
    }
    return weights;
}

/// The absolute value of the hash read as a signed number. Unsigned arithmetic gives the smallest
/// one, which has none, 2^63.
std::uint64_t roseSeed(std::string_view label) {
    const std::uint64_t hash = labelHash(label);
    return static_cast<std::int64_t>(hash) < 0 ? 0 - hash : hash;
}

}  // namespace

const std::array<double, 12>& CalculationEngine::getMonthlyFactors(const PlaceArgs& place) {
    const FoldedRegion region(place.region);
    if (region.contains("valle") || region.contains("trentino")) return kAlpineFactors;
    const bool isAlpine = place.lat.value_or(0) > 45.8 && place.lon.value_or(0) < 12.0;
    return isAlpine ? kAlpineFactors : kStandardFactors;
}

WindDistribution CalculationEngine::calculateMonthlyWindDistribution(const MonthlyWindArgs& args) {
    static const std::array<std::size_t, kMonths> order = monthsByName();
    const double mean = meanSpeed(args.kwh);
    const std::array<double, kMonths>& factors =
        getMonthlyFactors({.lat = args.lat, .lon = args.lon, .region = args.region});

    WindDistribution distribution;
    distribution.reserve(kMonths);
    for (const std::size_t month : order) {
        const auto counts =
            apportioned(daysInMonth[month], rayleighProbabilities(factors[month] * mean));
        distribution.try_emplace(distribution.end(), std::string(months[month]))
            ->second.assign(counts.begin(), counts.end());
    }
    return distribution;
}

WindRoseData CalculationEngine::calculateWindRoseData(const WindRoseArgs& args) {
    constexpr double kHoursOfYear = 8760;
    const PrevailingSectors prevailing = prevailingSectors(args.region);
    const std::array<double, kSectors> weights =
        sectorWeights(prevailing, RoseGenerator(roseSeed(args.cityLabel)));
    const double weightSum = std::accumulate(weights.begin(), weights.end(), 0.0);
    const double mean = meanSpeed(args.kwh);
    const ClassProbabilities prevailingWinds = rayleighProbabilities(1.3 * mean);
    const ClassProbabilities otherWinds = rayleighProbabilities(0.85 * mean);

    WindRoseData rose;
    rose.reserve(kSectors);
    for (std::size_t sector = 0; sector < kSectors; ++sector) {
        const long hours = std::lround(weights[sector] / weightSum * kHoursOfYear);
        const auto counts =
            apportioned(hours, prevailing.include(sector) ? prevailingWinds : otherWinds);
        rose.try_emplace(rose.end(), static_cast<int>(sector))
            ->second.assign(counts.begin(), counts.end());
    }
    return rose;
}

}  // namespace kalvo::engine
