#include "app/content_view.h"

#include <algorithm>
#include <charconv>
#include <numbers>
#include <utility>

#include "base/text.h"

namespace kalvo::app {

namespace {

using engine::CalculationEngine;
using engine::Location;

constexpr std::string_view kItaly = "Italia";
constexpr std::string_view kSanMarino = "San Marino";
constexpr std::string_view kVatican = "Città del Vaticano";

/// The only entry of the place list while places are found online.
constexpr const char* kOnlineHint =
    "Utilizza la barra di ricerca o il Globo per trovare città online...";

/// Region texts by which the catalogue tells the small states from Italy.
constexpr std::string_view kSanMarinoRegion = "San Marino";
constexpr std::string_view kVaticanRegion = "Vaticano";

/// Yields of a place found online, kWh per year; they also stand in for a catalogue figure that
/// is absent.
constexpr double kFallbackKwh1kw = 3000.0;
constexpr double kFallbackKwh2kw = 6000.0;
constexpr double kFallbackKwh3kw = 9000.0;

constexpr const char* kOnlineSource = "Meteoblue Online";
constexpr const char* kOfflineSource = "Stime Centraline";

bool belongsTo(const Location& place, std::string_view country) {
    if (country == kSanMarino) return place.region == kSanMarinoRegion;
    if (country == kVatican) return place.region == kVaticanRegion;
    if (country == kItaly) {
        return place.region != kSanMarinoRegion && place.region != kVaticanRegion;
    }
    return false;
}

double yieldFor(const Location& place, int turbineKW) {
    switch (turbineKW) {
        case 1:
            return place.kwh1kw.value_or(kFallbackKwh1kw);
        case 2:
            return place.kwh2kw.value_or(kFallbackKwh2kw);
        default:
            return place.kwh3kw.value_or(kFallbackKwh3kw);
    }
}

Location locationFrom(const online::MeteoblueSearchResult& result) {
    return {.label = result.label,
            .city = result.name,
            .province = result.country,
            .region = result.iso2,
            .kwh1kw = kFallbackKwh1kw,
            .kwh2kw = kFallbackKwh2kw,
            .kwh3kw = kFallbackKwh3kw,
            .latitude = result.lat,
            .longitude = result.lon,
            .station = "",
            .stationOwner = "",
            .source = kOnlineSource};
}

/// The whole text as a decimal integer with an optional sign, or nothing when it is anything else
/// or does not fit.
std::optional<std::int64_t> parseInteger(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end) return std::nullopt;
    return value;
}

std::string kWhPerYear(double kwh) { return CalculationEngine::formatKWh(kwh) + " kWh/anno"; }

}  // namespace

ContentView::ContentView(const Services& services)
    : currentDistribution(CalculationEngine::calculateMonthlyWindDistribution(
          {.kwh = 3200.0, .lat = std::nullopt, .lon = std::nullopt, .region = ""})),
      currentRoseData(CalculationEngine::calculateWindRoseData({.cityLabel = "Default",
                                                                .kwh = 3200.0,
                                                                .lat = std::nullopt,
                                                                .lon = std::nullopt,
                                                                .region = ""})),
      currentSolarData(CalculationEngine::calculateOfflineSolarData(
          {.lat = 42.0, .lon = std::nullopt, .region = kItaly})),
      countries{std::string(kOnlineCountry), std::string(kItaly), std::string(kSanMarino),
                std::string(kVatican)},
      services_(services) {}

void ContentView::initializeDatabase() {
    allLocations = services_.parser.loadLocations();
    filteredLocationNames = getFilteredLocationNames();
    if (!filteredLocationNames.empty()) selectedLocationLabel = filteredLocationNames.front();
    loadGeoMapsForCountry(selectedCountry);
    calculate();
}

void ContentView::onCountryChanged(const std::string& country) {
    selectedRegion.reset();
    selectedProvince.reset();
    filteredLocationNames = country == kOnlineCountry ? std::vector<std::string>{kOnlineHint}
                                                      : getFilteredLocationNames();
    if (!filteredLocationNames.empty()) selectedLocationLabel = filteredLocationNames.front();
    loadGeoMapsForCountry(country);
    calculate();
}

void ContentView::loadGeoMapsForCountry(const std::string& country) {
    const auto load = [this](const char* regions, const char* provinces) {
        regionMapData = services_.parser.loadGeoJSON(regions);
        provinceMapData = services_.parser.loadGeoJSON(provinces);
    };
    if (country == kItaly) load("regioni.json", "province.json");
    if (country == kSanMarino) load("san_marino_regioni.json", "san_marino_province.json");
    if (country == kVatican) load("vatican_regioni.json", "vatican_province.json");

    provinceWindMap.clear();
    for (const Location& place : allLocations) {
        if (!place.kwh1kw) continue;
        double& highest = provinceWindMap[base::uppercased(place.province)];
        highest = std::max(highest, *place.kwh1kw);
    }
}

std::optional<std::filesystem::path> ContentView::flagImage(std::string_view country) const {
    if (country == kItaly) return services_.bundle.image("flag_it");
    if (country == kSanMarino) return services_.bundle.image("flag_sm");
    if (country == kVatican) return services_.bundle.image("flag_vc");
    return std::nullopt;
}

std::optional<std::filesystem::path> ContentView::loadLogoImage() const {
    return services_.bundle.image("logo");
}

std::vector<std::string> ContentView::getFilteredLocationNames() const {
    std::vector<std::string> names;
    // The catalogue stands in the order of its labels, and so does what is taken from it.
    for (const Location& place : allLocations) {
        if (belongsTo(place, selectedCountry)) names.push_back(place.label);
    }
    return names;
}

void ContentView::filterLocations(std::string_view query) {
    if (isOnlineEntry()) return;
    const std::string wanted = base::lowercased(base::trimmedSpacesAndNewlines(query));
    filteredLocationNames = getFilteredLocationNames();
    std::erase_if(filteredLocationNames, [&](const std::string& label) {
        return base::lowercased(label).find(wanted) == std::string::npos;
    });
    if (filteredLocationNames.empty()) return;
    selectedLocationLabel = filteredLocationNames.front();
    calculate();
}

void ContentView::performOnlineSearch() {
    if (!searchText.empty()) tasks_.start(searchOnline());
}

base::Task<void> ContentView::searchOnline() {
    isFetchingOnline = true;
    std::string query = searchText;
    auto found = co_await services_.scraper.searchLocations(std::move(query), targetLat, targetLon);
    // Before the results are taken: they may start a download, which shows the indicator again.
    isFetchingOnline = false;
    if (found) {
        applySearchResults(std::move(*found));
    } else {
        services_.diagnostics.print("Online search error: " + found.error().description());
    }
    if (onChanged) onChanged();
}

void ContentView::applySearchResults(std::vector<online::MeteoblueSearchResult> results) {
    onlineSearchResults = std::move(results);
    onlineLocations.clear();
    std::vector<std::string> names;
    for (const online::MeteoblueSearchResult& result : onlineSearchResults) {
        names.push_back(result.label);
        onlineLocations.insert_or_assign(result.label, locationFrom(result));
    }
    if (names.empty()) return;
    filteredLocationNames = std::move(names);
    selectedLocationLabel = filteredLocationNames.front();
    isOnlineMode = true;
    calculate();
}

void ContentView::onGlobeTapped(double lat, double lon) {
    targetLat = lat;
    targetLon = lon;
    tasks_.start(searchNear(lat, lon));
}

base::Task<void> ContentView::searchNear(double lat, double lon) {
    std::string nameless = "Località Globale";
    searchText = co_await services_.scraper.reverseGeocode(lat, lon, std::move(nameless));
    performOnlineSearch();
    if (onChanged) onChanged();
}

void ContentView::calculate() {
    const std::int64_t quantity = parseInteger(quantityString).value_or(1);
    if (quantity < 1) {
        resultText = "Inserisci una quantità valida.";
        return;
    }
    const Location* place = findPlace();
    if (place == nullptr) {
        resultText = "Seleziona una località valida.";
        return;
    }
    setTarget(*place);
    Calculation calculation{
        .place = *place, .quantity = quantity, .kwh = yieldFor(*place, selectedTurbineKW)};
    if (isOnlineMode) {
        const auto result = std::find_if(
            onlineSearchResults.begin(), onlineSearchResults.end(),
            [this](const auto& found) { return found.label == selectedLocationLabel; });
        if (result != onlineSearchResults.end()) {
            tasks_.start(calculateOnline(result->slug, std::move(calculation)));
            return;
        }
    }
    calculateOffline(calculation);
}

const Location* ContentView::findPlace() const {
    if (!isOnlineEntry()) return allLocations.find(selectedLocationLabel);
    const auto found = onlineLocations.find(selectedLocationLabel);
    return found == onlineLocations.end() ? nullptr : &found->second;
}

void ContentView::setTarget(const Location& place) {
    constexpr double kRadiansPerDegree = std::numbers::pi / 180;
    targetLat = place.latitude;
    targetLon = place.longitude;
    targetName = place.city;
    if (targetLat && targetLon) {
        globeCenterLat = *targetLat * kRadiansPerDegree;
        globeCenterLon = *targetLon * kRadiansPerDegree;
    }
}

base::Task<void> ContentView::calculateOnline(std::string slug, Calculation calculation) {
    isFetchingOnline = true;
    auto climate = co_await services_.scraper.fetchClimateData(std::move(slug));
    if (climate) {
        currentDistribution = std::move(climate->windDistribution);
        currentRoseData = std::move(climate->windRose);
        currentSolarData = climate->solarData ? std::move(*climate->solarData)
                                              : offlineSolarData(calculation.place);
        updateCalculationsDisplay(calculation.place, calculation.quantity, true);
    } else {
        services_.diagnostics.print("Meteoblue online fetch failed: " +
                                    climate.error().description() + ", fallback offline");
        calculateOffline(calculation);
    }
    isFetchingOnline = false;
    if (onChanged) onChanged();
}

void ContentView::calculateOffline(const Calculation& calculation) {
    const Location& place = calculation.place;
    currentDistribution = CalculationEngine::calculateMonthlyWindDistribution(
        {.kwh = calculation.kwh, .lat = targetLat, .lon = targetLon, .region = place.region});
    currentRoseData = CalculationEngine::calculateWindRoseData({.cityLabel = place.label,
                                                                .kwh = calculation.kwh,
                                                                .lat = targetLat,
                                                                .lon = targetLon,
                                                                .region = place.region});
    currentSolarData = offlineSolarData(place);
    updateCalculationsDisplay(place, calculation.quantity, false);
}

engine::SolarData ContentView::offlineSolarData(const Location& place) const {
    return CalculationEngine::calculateOfflineSolarData(
        {.lat = targetLat, .lon = targetLon, .region = place.region});
}

void ContentView::updateCalculationsDisplay(const Location& location,
                                            std::int64_t quantity,
                                            bool isOnline) {
    const auto count = static_cast<double>(quantity);
    const std::string size = std::to_string(selectedTurbineKW);

    const double oneTurbine = CalculationEngine::calculateProductionFromDistribution(
        currentDistribution, selectedTurbineKW);
    const double plant1 = CalculationEngine::calculateSolarProduction(currentSolarData, 1);
    const double plant2 = CalculationEngine::calculateSolarProduction(currentSolarData, 2);
    const double plant3 = CalculationEngine::calculateSolarProduction(currentSolarData, 3);

    const double onePlant = selectedTurbineKW == 1   ? plant1
                            : selectedTurbineKW == 2 ? plant2
                                                     : plant3;
    const double solarTotal = onePlant * count;
    pvDetailsText = "Stima produzione solare per impianto " + size +
                    " kWp:\n• 1 kWp: " + kWhPerYear(plant1) + "\n• 2 kWp: " + kWhPerYear(plant2) +
                    "\n• 3 kWp: " + kWhPerYear(plant3);
    pvResultText = "Produzione Solare Lorda: " + kWhPerYear(solarTotal) +
                   "\nCoefficiente di Correzione: 70%\nProduzione Solare Attesa: " +
                   kWhPerYear(solarTotal * CalculationEngine::correctionCoefficient);

    const double windTotal = oneTurbine * count;
    detailsText = location.region + " - produzione singola turbina " + size +
                  " kW: " + kWhPerYear(oneTurbine) + " (" +
                  (isOnline ? kOnlineSource : kOfflineSource) + ")";
    resultText = "Produzione Lorda: " + kWhPerYear(windTotal) +
                 "\nCoeff. di Correzione: 70%\nProduzione Attesa: " +
                 kWhPerYear(CalculationEngine::correctionCoefficient * windTotal);
}

void ContentView::copyResult() { services_.clipboard.setString(detailsText + "\n\n" + resultText); }

}  // namespace kalvo::app
