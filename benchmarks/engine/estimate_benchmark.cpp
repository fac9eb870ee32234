#include <cmath>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "engine/calculation_engine.h"
#include "engine/location_parser.h"

/// The whole country estimated: for each of the 7,906 places the wind of every month, the rose,
/// the sky, and the yearly energy of three turbines and three photovoltaic plants.

namespace {

using kalvo::engine::CalculationEngine;
using kalvo::engine::Catalogue;
using kalvo::engine::Location;
using kalvo::engine::SolarData;
using kalvo::engine::WindDistribution;

const Catalogue& country() {
    static const kalvo::platform::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    static const Catalogue catalogue =
        kalvo::engine::LocationParser(bundle, kalvo::platform::Diagnostics::standardOutput())
            .loadLocations();
    return catalogue;
}

WindDistribution distributionOf(const Location& place) {
    return CalculationEngine::calculateMonthlyWindDistribution({.kwh = *place.kwh1kw,
                                                                .lat = place.latitude,
                                                                .lon = place.longitude,
                                                                .region = place.region});
}

void BM_WholeCountry(benchmark::State& state) {
    for ([[maybe_unused]] const auto iteration : state) {
        double energy = 0;
        for (const Location& place : country()) {
            const WindDistribution distribution = distributionOf(place);
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
BENCHMARK(BM_WholeCountry)->Unit(benchmark::kMillisecond);

}  // namespace
