#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "engine/calculation_engine.h"
#include "engine/folded_region.h"
#include "engine/wind_range.h"
#include "engine/wind_scale.h"

namespace kalvo::engine {

namespace {

using ClassProbabilities = std::array<double, WindRange::kCount>;

constexpr std::size_t kMonths = 12;
constexpr std::size_t kSectors = 16;

constexpr std::array<double, kMonths> kStandardFactors{1.12, 1.18, 1.15, 1.08, 0.96, 0.86,
                                                       0.80, 0.84, 0.90, 1.02, 1.05, 1.09};
constexpr std::array<double, kMonths> kAlpineFactors{0.75, 0.85, 1.15, 1.25, 1.20, 1.15,
                                                     1.10, 1.05, 0.95, 0.90, 0.85, 0.75};

/// The share of each wind-speed class under a Rayleigh distribution round a mean speed (km/h):
/// P(speed > v) = exp(-(v / c)^2), with c = 1.128 times the mean.
ClassProbabilities rayleighShares(double meanSpeed) {
    constexpr std::array<double, WindRange::kCount> kUpperEdges{2, 5, 10, 20, 30, 40, 999};
    const double scale = meanSpeed * 1.128;
    // Without wind, or with a yield that is not a number, every day is a calm one.
    if (scale == 0 || std::isnan(scale)) return {1};

    ClassProbabilities shares;
    double aboveLowerEdge = 1;
    for (std::size_t k = 0; k < shares.size(); ++k) {
        const double ratio = kUpperEdges[k] / scale;
        // The exponential of less is zero, but takes the library's slow road to find out.
        const double aboveUpperEdge = ratio < 28 ? std::exp(-(ratio * ratio)) : 0;
        shares[k] = aboveLowerEdge - aboveUpperEdge;
        aboveLowerEdge = aboveUpperEdge;
    }
    return shares;
}

/// The nearest integer, halves up, of a number from 0 to a year's hours. Narrow and without a
/// branch, so that several are rounded at once.
std::int32_t rounded(double value) {
    const auto whole = static_cast<std::int32_t>(value);
    return whole + static_cast<std::int32_t>(value - whole >= 0.5);
}

/// A total split by shares into whole numbers; what rounding lost or won goes to the first of the
/// largest, so that they add up to the total.
std::array<std::int32_t, WindRange::kCount> apportioned(std::int32_t total,
                                                        const ClassProbabilities& shares) {
    std::array<std::int32_t, WindRange::kCount> counts{};
    for (std::size_t k = 0; k < shares.size(); ++k) counts[k] = rounded(shares[k] * total);
    *std::max_element(counts.begin(), counts.end()) +=
        total - std::accumulate(counts.begin(), counts.end(), 0);
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

/// The linear congruential generator of the C standard's example, with numbers from 0 to 1.
class Randomness {
 public:
    explicit Randomness(std::uint64_t seed) : state_(seed & kMask) {}

    double next() {
        state_ = (state_ * 1103515245 + 12345) & kMask;
        return static_cast<double>(state_) / static_cast<double>(kMask);
    }

 private:
    static constexpr std::uint64_t kMask = 0x7fffffff;
    std::uint64_t state_;
};

/// The two sectors that the wind blows from most.
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
                                           Randomness randomness) {
    std::array<double, kSectors> weights{};
    for (std::size_t sector = 0; sector < kSectors; ++sector) {
        weights[sector] = 0.02 + 0.02 * randomness.next();
        if (prevailing.include(sector)) {
            weights[sector] += 0.18 + 0.1 * randomness.next();
        } else if (prevailing.areNextTo(sector)) {
            weights[sector] += 0.05 + 0.05 * randomness.next();
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
        const auto counts = apportioned(daysInMonth[month], rayleighShares(factors[month] * mean));
        distribution.try_emplace(distribution.end(), std::string(months[month]))
            ->second.assign(counts.begin(), counts.end());
    }
    return distribution;
}

WindRoseData CalculationEngine::calculateWindRoseData(const WindRoseArgs& args) {
    constexpr double kHoursOfYear = 8760;
    const PrevailingSectors prevailing = prevailingSectors(args.region);
    const std::array<double, kSectors> weights =
        sectorWeights(prevailing, Randomness(roseSeed(args.cityLabel)));
    const double weightSum = std::accumulate(weights.begin(), weights.end(), 0.0);
    const double mean = meanSpeed(args.kwh);
    const ClassProbabilities prevailingShares = rayleighShares(1.3 * mean);
    const ClassProbabilities otherShares = rayleighShares(0.85 * mean);

    WindRoseData rose;
    rose.reserve(kSectors);
    for (std::size_t sector = 0; sector < kSectors; ++sector) {
        const std::int32_t hours = rounded(weights[sector] / weightSum * kHoursOfYear);
        const auto counts =
            apportioned(hours, prevailing.include(sector) ? prevailingShares : otherShares);
        rose.try_emplace(rose.end(), static_cast<int>(sector))
            ->second.assign(counts.begin(), counts.end());
    }
    return rose;
}

}  // namespace kalvo::engine
