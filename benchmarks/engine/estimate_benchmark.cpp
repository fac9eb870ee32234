#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "base/text.h"
#include "engine/calculation_engine.h"
#include "engine/location_parser.h"
#include "engine/wind_scale.h"

/// The whole country estimated: for each of the 7,906 places the wind of every month, the rose,
/// the sky, and the yearly energy of three turbines and three photovoltaic plants.

namespace {

using kalvo::engine::CalculationEngine;
using kalvo::engine::Catalogue;
using kalvo::engine::Location;
using kalvo::engine::SolarData;
using kalvo::engine::WindDistribution;

const Catalogue& country() {
    static const kalvo::base::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    static const Catalogue catalogue =
        kalvo::engine::LocationParser(bundle, kalvo::base::Diagnostics::standardOutput())
            .loadLocations();
    return catalogue;
}

void wholeCountry(benchmark::State& state) {
    for ([[maybe_unused]] const auto iteration : state) {
        double energy = 0;
        for (const Location& place : country()) {
            const WindDistribution distribution =
                CalculationEngine::calculateMonthlyWindDistribution({.kwh = *place.kwh1kw,
                                                                     .lat = place.latitude,
                                                                     .lon = place.longitude,
                                                                     .region = place.region});
            benchmark::DoNotOptimize(
                CalculationEngine::calculateWindRoseData({.cityLabel = place.label,
                                                          .kwh = *place.kwh1kw,
                                                          .lat = place.latitude,
                                                          .lon = place.longitude,
                                                          .region = place.region}));
            const SolarData sky = CalculationEngine::calculateOfflineSolarData(
                {.lat = place.latitude, .lon = place.longitude, .region = place.region});
            for (int kw = 1; kw <= 3; ++kw) {
                energy += CalculationEngine::calculateProductionFromDistribution(distribution, kw);
                energy += CalculationEngine::calculateSolarProduction(sky, kw);
            }
        }
        benchmark::DoNotOptimize(energy);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(country().size()));
}
BENCHMARK(wholeCountry)->Unit(benchmark::kMillisecond);

/// The same figures the straightforward way: node-based dictionaries of vectors, and every class
/// of every row from two exponentials of its own.
namespace plain {

std::vector<int> apportioned(int total, double meanSpeed) {
    const std::vector<double> edges{0, 2, 5, 10, 20, 30, 40, 999};
    const double scale = meanSpeed * 1.128;
    std::vector<int> counts;
    for (std::size_t k = 0; k + 1 < edges.size(); ++k) {
        const double share =
            std::exp(-std::pow(edges[k] / scale, 2)) - std::exp(-std::pow(edges[k + 1] / scale, 2));
        counts.push_back(static_cast<int>(std::round(share * total)));
    }
    *std::max_element(counts.begin(), counts.end()) +=
        total - std::accumulate(counts.begin(), counts.end(), 0);
    return counts;
}

using Distribution = std::map<std::string, std::vector<int>>;

Distribution distribution(const Location& place, double mean) {
    const auto& factors = CalculationEngine::getMonthlyFactors(
        {.lat = place.latitude, .lon = place.longitude, .region = place.region});
    Distribution result;
    for (std::size_t month = 0; month < 12; ++month) {
        result[std::string(CalculationEngine::months[month])] =
            apportioned(CalculationEngine::daysInMonth[month], factors[month] * mean);
    }
    return result;
}

std::map<int, std::vector<int>> rose(const Location& place, double mean) {
    const std::string region = kalvo::base::lowercased(place.region);
    int first = 6;
    int second = 14;
    if (region.find("sardegna") != std::string::npos) first = 12;
    if (region.find("liguria") != std::string::npos) first = 10, second = 0;
    if (region.find("friuli") != std::string::npos) second = 2;
    const auto prevails = [&](int sector) { return sector % 16 == first || sector % 16 == second; };

    std::uint64_t state = std::hash<std::string>{}(place.label);
    const auto random = [&state] {
        state = (state * 1103515245 + 12345) % 2147483648;
        return static_cast<double>(state) / 2147483647;
    };
    std::vector<double> weights;
    for (int sector = 0; sector < 16; ++sector) {
        double weight = 0.02 + 0.02 * random();
        if (prevails(sector)) {
            weight += 0.18 + 0.1 * random();
        } else if (prevails(sector + 1) || prevails(sector + 15)) {
            weight += 0.05 + 0.05 * random();
        }
        weights.push_back(weight);
    }
    const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    std::map<int, std::vector<int>> result;
    for (int sector = 0; sector < 16; ++sector) {
        const double hours = std::round(weights[static_cast<std::size_t>(sector)] / sum * 8760);
        result[sector] =
            apportioned(static_cast<int>(hours), (prevails(sector) ? 1.3 : 0.85) * mean);
    }
    return result;
}

double production(const Distribution& distribution, int kw) {
    const std::vector<std::vector<double>> outputs{
        {0, 0, 0.25, 12, 24, 24, 24}, {0, 0, 0.5, 24, 48, 48, 48}, {0, 0, 0, 36, 72, 48, 48}};
    const std::vector<double>& output = outputs[static_cast<std::size_t>(kw - 1)];
    double energy = 0;
    for (const auto& month : distribution) {
        for (std::size_t k = 0; k < output.size(); ++k) energy += output[k] * month.second[k];
    }
    return std::round(energy);
}

}  // namespace plain

void wholeCountryPlainly(benchmark::State& state) {
    for ([[maybe_unused]] const auto iteration : state) {
        double energy = 0;
        for (const Location& place : country()) {
            const double mean = kalvo::engine::meanSpeed(*place.kwh1kw);
            const plain::Distribution distribution = plain::distribution(place, mean);
            benchmark::DoNotOptimize(plain::rose(place, mean));
            const SolarData sky = CalculationEngine::calculateOfflineSolarData(
                {.lat = place.latitude, .lon = place.longitude, .region = place.region});
            for (int kw = 1; kw <= 3; ++kw) {
                energy += plain::production(distribution, kw);
                energy += CalculationEngine::calculateSolarProduction(sky, kw);
            }
        }
        benchmark::DoNotOptimize(energy);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(country().size()));
}
BENCHMARK(wholeCountryPlainly)->Unit(benchmark::kMillisecond);

}  // namespace
