#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "app/country.h"
#include "app/shown_result.h"
#include "base/bundle.h"
#include "base/clipboard.h"
#include "base/diagnostics.h"
#include "base/task.h"
#include "engine/calculation_engine.h"
#include "engine/catalogue.h"
#include "engine/climate_data.h"
#include "engine/location.h"
#include "engine/location_parser.h"
#include "geojson/geojson.h"
#include "online/meteoblue_scraper.h"

namespace kalvo::app {

/// What the state uses of the rest of the system. All of it outlives the state.
struct Services {
    engine::LocationParser& parser;
    online::MeteoblueScraper& scraper;
    base::Clipboard& clipboard;
    base::Diagnostics& diagnostics;
    const base::Bundle& bundle;
};

/// The whole interactive state of one window, and every operation on it. The screen shows its
/// fields, edits the choices among them, forwards events to the operations and redraws after each;
/// what an operation does later, when a download has answered, it is told through `onChanged`.
/// Needs neither a window nor a network and lives on the user-interface thread. Its end gives up
/// the downloads under way.
class ContentView {
 public:
    explicit ContentView(const Services& services);
    ContentView(const ContentView&) = delete;
    ContentView& operator=(const ContentView&) = delete;
    ~ContentView() = default;

    std::string selectedCountry{kOnlineCountry};
    bool isOnlineMode = false;  // false: offline estimates, true: online climate data
    int selectedTurbineKW = 2;  // kW: 1, 2 or 3
    std::string quantityString = "1";
    std::string searchText;
    std::string selectedLocationLabel;  // key into allLocations or onlineLocations

    engine::Catalogue allLocations;
    std::vector<std::string> filteredLocationNames;
    std::vector<online::MeteoblueSearchResult> onlineSearchResults;
    std::unordered_map<std::string, engine::Location> onlineLocations;

    std::optional<std::string> selectedRegion;
    std::optional<std::string> selectedProvince;

    std::string resultText;     // wind result, or a validation message
    std::string detailsText;    // one line on the wind result
    std::string pvResultText;   // photovoltaic result
    std::string pvDetailsText;  // photovoltaic yields for 1, 2 and 3 kWp
    engine::WindDistribution currentDistribution;
    engine::WindRoseData currentRoseData;
    engine::SolarData currentSolarData;
    /// What these texts and data sets belong to; nothing while they are the samples of the start.
    std::optional<ShownResult> shownResult;

    int activeTab = 0;         // 0 regions, 1 provinces, 2 wind
    int activeDetailsTab = 0;  // 0 wind plant, 1 photovoltaic plant
    bool isFetchingOnline = false;
    bool showInfoSheet = false;

    double globeCenterLat = 0.35;     // radians
    double globeCenterLon = 0.0;      // radians
    std::optional<double> targetLat;  // degrees
    std::optional<double> targetLon;  // degrees
    std::optional<std::string> targetName;
    std::optional<geojson::GeoMapData> regionMapData;
    std::optional<geojson::GeoMapData> provinceMapData;
    /// Province code in upper case to the highest 1 kW yield of its places, kWh per year.
    std::unordered_map<std::string, double> provinceWindMap;

    const std::vector<std::string> countries;

    /// Called when a step of an operation that had to wait has changed the state.
    std::function<void()> onChanged;

    /// Starts up: loads the catalogue and calculates. Runs once, when the main screen is first
    /// shown.
    void initializeDatabase();
    /// Follows a change of `selectedCountry` by the user: lists its places, selects the first and
    /// calculates.
    void onCountryChanged(const std::string& country);
    /// Loads the outlines of a country of the catalogue and finds each province's highest yield.
    void loadGeoMapsForCountry(const std::string& country);

    /// Returns the image file of a country's flag or of the logo; nothing where there is none.
    [[nodiscard]] std::optional<std::filesystem::path> flagImage(std::string_view country) const;
    [[nodiscard]] std::optional<std::filesystem::path> loadLogoImage() const;

    /// Returns the labels of the chosen country's catalogue places, by code point.
    [[nodiscard]] std::vector<std::string> getFilteredLocationNames() const;
    /// Narrows the place list of a catalogue country to the labels that contain the text, in any
    /// letter case, and calculates for the first.
    void filterLocations(std::string_view query);
    /// Starts to search online for `searchText`; the first place found is selected and calculated.
    void performOnlineSearch();
    /// Marks a tapped point of the globe and starts to search online for its name.
    void onGlobeTapped(engine::LatLon point);

    /// Returns whether a search has left the place list empty.
    [[nodiscard]] bool searchFoundNothing() const;
    /// Returns the position in `filteredLocationNames` of the place that `searchText` means: one of
    /// exactly that name (without province and station, in any letter case), else the first whose
    /// name begins so, else the first. Nothing in an empty list.
    [[nodiscard]] std::optional<std::size_t> bestMatch() const;

    /// Returns whether `resultText` is a validation message and not a result.
    [[nodiscard]] bool showsMessage() const;
    /// Returns whether `quantityString` counts as 1 because it is no whole number.
    [[nodiscard]] bool quantityCountsAsOne() const;
    /// Says whose figures the data sets and charts hold when the choices do not tell: "Valori di
    /// esempio: scegli una località" or "Valori dell'ultimo calcolo: Trapani (TP)", the place's
    /// name whole, whatever it holds. Empty when there is nothing to say.
    [[nodiscard]] std::string notice() const;

    /// Returns the chosen place, or null.
    [[nodiscard]] const engine::Location* selectedPlace() const;
    /// Returns the mean wind of a catalogue place and its main station; nothing for any other
    /// place. The first call reads the table of stations.
    [[nodiscard]] std::optional<engine::WindEstimate> windEstimate(
        const engine::Location& place) const;

    /// Turns the current choices into texts and data sets; may leave a download under way.
    void calculate();
    /// Builds the four texts from the current data sets.
    void updateCalculationsDisplay(const engine::Location& location,
                                   std::int64_t quantity,
                                   bool isOnline);
    /// Puts the wind texts on the clipboard.
    void copyResult();

 private:
    /// What a calculation works with once the choices have been validated.
    struct Calculation {
        engine::Location place;
        std::int64_t quantity;  // turbines, at least 1
        double kwh;             // yield of one turbine, kWh per year on the catalogue's scale
        DataSource source;      // of that yield
    };

    [[nodiscard]] bool isOnlineEntry() const { return selectedCountry == kOnlineCountry; }
    [[nodiscard]] const engine::Location* findPlace(const std::string& label) const;
    [[nodiscard]] Calculation calculationFor(const engine::Location& place,
                                             std::int64_t quantity) const;
    void setTarget(const engine::Location& place);
    void calculateOffline(const Calculation& calculation);
    [[nodiscard]] engine::SolarData offlineSolarData(const engine::Location& place) const;
    void applySearchResults(std::vector<online::MeteoblueSearchResult> results);

    base::Task<void> searchOnline();
    base::Task<void> searchNear(engine::LatLon point);
    base::Task<void> calculateOnline(std::string slug, Calculation calculation);

    Services services_;
    std::string fruitlessSearch_;  // the online search that has just found nothing
    base::TaskScope tasks_;        // last, so that it ends before what its tasks use
};

}  // namespace kalvo::app
