#include "tools/monkey/invariants.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "engine/calculation_engine.h"

namespace kalvo::monkey {

namespace {

using engine::CalculationEngine;

bool isOneOf(int value, int first, int last) { return value >= first && value <= last; }

/// Every month has seven classes that add up to its length, whatever the web said.
bool isWholeYear(const engine::WindDistribution& distribution) {
    for (std::size_t month = 0; month < CalculationEngine::months.size(); ++month) {
        const auto counts = distribution.find(CalculationEngine::months[month]);
        if (counts == distribution.end() || counts->second.size() != 7) return false;
        const auto days =
            std::accumulate(counts->second.begin(), counts->second.end(), std::int64_t{0});
        if (days != CalculationEngine::daysInMonth[month]) return false;
    }
    return distribution.size() == CalculationEngine::months.size();
}

bool isYearOfSky(const engine::SolarData& sky) {
    return sky.sunny.size() == 12 && sky.partlyCloudy.size() == 12 && sky.overcast.size() == 12 &&
           sky.precip.size() == 12;
}

}  // namespace

std::string faultOf(const app::ContentView& state, bool requestsUnderWay) {
    if (std::find(state.countries.begin(), state.countries.end(), state.selectedCountry) ==
        state.countries.end()) {
        return "the country is none of the list: " + state.selectedCountry;
    }
    if (!isOneOf(state.selectedTurbineKW, 1, 3)) return "there is no such turbine";
    if (!isOneOf(state.activeTab, 0, 2)) return "there is no such map";
    if (!isOneOf(state.activeDetailsTab, 0, 1)) return "there is no such analysis";
    if (state.isFetchingOnline && !requestsUnderWay) return "it waits for nobody";
    if (!isWholeYear(state.currentDistribution)) return "the wind's days are not a year";
    if (state.currentRoseData.size() != 16) return "the rose has not sixteen directions";
    if (!isYearOfSky(state.currentSolarData)) return "the sky's months are not a year";
    if (!(std::abs(state.globeCenterLat) <= std::numbers::pi / 2)) {
        return "the globe is turned beyond a pole";
    }
    if (!std::isfinite(state.globeCenterLon)) return "the globe is turned to no longitude";
    if (state.resultText != "Inserisci una quantità valida." &&
        state.resultText != "Seleziona una località valida." &&
        !state.resultText.starts_with("Produzione Lorda: ") && !state.resultText.empty()) {
        return "the result reads " + state.resultText;
    }
    return {};
}

}  // namespace kalvo::monkey
