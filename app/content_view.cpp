#include "app/content_view.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "app/place_text.h"
#include "base/text.h"

namespace kalvo::app {

namespace {

using engine::CalculationEngine;
using engine::Location;

/// The only entry of the place list while places are found online.
constexpr const char* kOnlineHint =
    "Utilizza la barra di ricerca o il Globo per trovare città online...";

/// Yields of a place found online, kWh per year; they also stand in for a catalogue figure that
/// is absent.
constexpr double kFallbackKwh1kw = 3000.0;
constexpr double kFallbackKwh2kw = 6000.0;
constexpr double kFallbackKwh3kw = 9000.0;

constexpr const char* kOnlineSource = "Meteoblue Online";
constexpr const char* kOfflineSource = "Stime Centraline";

constexpr const char* kInvalidQuantity = "Inserisci una quantità valida.";
constexpr const char* kInvalidPlace = "Seleziona una località valida.";

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

std::vector<std::string> countryNames() {
    std::vector<std::string> names{std::string(kOnlineCountry)};
    for (const Country& country : kCountries) names.emplace_back(country.name);
    return names;
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
          {.lat = 42.0, .lon = std::nullopt, .region = "Italia"})),
      countries(countryNames()),
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
    if (const Country* files = findCountry(country)) {
        regionMapData = services_.parser.loadGeoJSON(files->regionOutlines);
        provinceMapData = services_.parser.loadGeoJSON(files->provinceOutlines);
    }
    provinceWindMap.clear();
    for (const Location& place : allLocations) {
        if (!place.kwh1kw) continue;
        double& highest = provinceWindMap[base::uppercased(place.province)];
        highest = std::max(highest, *place.kwh1kw);
    }
}

std::optional<std::filesystem::path> ContentView::flagImage(std::string_view country) const {
    const Country* found = findCountry(country);
    return found == nullptr ? std::nullopt : services_.bundle.image(found->flag);
}

std::optional<std::filesystem::path> ContentView::loadLogoImage() const {
    return services_.bundle.image("logo");
}

std::vector<std::string> ContentView::getFilteredLocationNames() const {
    std::vector<std::string> names;
    // The catalogue stands in the order of its labels, and so does what is taken from it.
    for (const Location& place : allLocations) {
        if (countryOfRegion(place.region).name == selectedCountry) names.push_back(place.label);
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
    const std::string query = searchText;
    auto found = co_await services_.scraper.searchLocations(query, targetLat, targetLon);
    // Before the results are taken: they may start a download, which shows the indicator again.
    isFetchingOnline = false;
    if (found) {
        fruitlessSearch_ = found->empty() ? query : "";
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

void ContentView::onGlobeTapped(engine::LatLon point) {
    targetLat = point.lat;
    targetLon = point.lon;
    tasks_.start(searchNear(point));
}

base::Task<void> ContentView::searchNear(engine::LatLon point) {
    std::string nameless = "Località Globale";
    searchText =
        co_await services_.scraper.reverseGeocode(point.lat, point.lon, std::move(nameless));
    performOnlineSearch();
    if (onChanged) onChanged();
}

bool ContentView::searchFoundNothing() const {
    if (!filteredLocationNames.empty()) return false;
    if (isOnlineEntry()) return !searchText.empty() && searchText == fruitlessSearch_;
    return !base::trimmedSpacesAndNewlines(searchText).empty();
}

std::optional<std::size_t> ContentView::bestMatch() const {
    if (filteredLocationNames.empty()) return std::nullopt;
    const std::string wanted = base::lowercased(base::trimmedSpacesAndNewlines(searchText));
    std::optional<std::size_t> beginsSo;
    for (std::size_t at = 0; at < filteredLocationNames.size(); ++at) {
        const Location* place = findPlace(filteredLocationNames[at]);
        if (place == nullptr) continue;
        const std::string name = base::lowercased(place->city);
        if (name == wanted) return at;
        if (!beginsSo && name.starts_with(wanted)) beginsSo = at;
    }
    return beginsSo.value_or(0);
}

bool ContentView::showsMessage() const {
    return resultText == kInvalidQuantity || resultText == kInvalidPlace;
}

bool ContentView::quantityCountsAsOne() const { return !parseInteger(quantityString); }

std::string ContentView::notice() const {
    if (!shownResult) return "Valori di esempio: scegli una località";
    if (!showsMessage() && !filteredLocationNames.empty()) return "";
    return "Valori dell'ultimo calcolo: " + placeTitle(shownResult->place);
}

std::optional<engine::WindEstimate> ContentView::windEstimate(const Location& place) const {
    return services_.parser.loadStations().estimateFor(place);
}

void ContentView::calculate() {
    const std::int64_t quantity = parseInteger(quantityString).value_or(1);
    if (quantity < 1) {
        resultText = kInvalidQuantity;
        return;
    }
    const Location* place = selectedPlace();
    if (place == nullptr) {
        resultText = kInvalidPlace;
        return;
    }
    setTarget(*place);
    Calculation calculation = calculationFor(*place, quantity);
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

ContentView::Calculation ContentView::calculationFor(const Location& place,
                                                     std::int64_t quantity) const {
    const auto& [figure, fallback] =
        selectedTurbineKW == 1   ? std::pair(place.kwh1kw, kFallbackKwh1kw)
        : selectedTurbineKW == 2 ? std::pair(place.kwh2kw, kFallbackKwh2kw)
                                 : std::pair(place.kwh3kw, kFallbackKwh3kw);
    const bool hasOwnYield = figure && place.source != kOnlineSource;
    return {.place = place,
            .quantity = quantity,
            .kwh = figure.value_or(fallback),
            .source = hasOwnYield ? DataSource::kStations : DataSource::kFixedYield};
}

const Location* ContentView::selectedPlace() const { return findPlace(selectedLocationLabel); }

const Location* ContentView::findPlace(const std::string& label) const {
    if (!isOnlineEntry()) return allLocations.find(label);
    const auto found = onlineLocations.find(label);
    return found == onlineLocations.end() ? nullptr : &found->second;
}

void ContentView::setTarget(const Location& place) {
    targetLat = place.latitude;
    targetLon = place.longitude;
    targetName = place.city;
    if (targetLat && targetLon) {
        globeCenterLat = engine::toRadians(*targetLat);
        globeCenterLon = engine::toRadians(*targetLon);
    }
}

base::Task<void> ContentView::calculateOnline(std::string slug, Calculation calculation) {
    isFetchingOnline = true;
    auto climate = co_await services_.scraper.fetchClimateData(std::move(slug));
    if (climate) {
        const bool isSkyDownloaded = climate->solarData.has_value();
        currentDistribution = std::move(climate->windDistribution);
        currentRoseData = std::move(climate->windRose);
        currentSolarData = climate->solarData ? std::move(*climate->solarData)
                                              : offlineSolarData(calculation.place);
        shownResult = ShownResult{.place = calculation.place,
                                  .turbineKW = selectedTurbineKW,
                                  .quantity = calculation.quantity,
                                  .source = DataSource::kMeteoblue,
                                  .isSkyDownloaded = isSkyDownloaded,
                                  .downloadTime = std::chrono::system_clock::now()};
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
    shownResult = ShownResult{.place = place,
                              .turbineKW = selectedTurbineKW,
                              .quantity = calculation.quantity,
                              .source = calculation.source,
                              .isSkyDownloaded = false,
                              .downloadTime = std::nullopt};
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
