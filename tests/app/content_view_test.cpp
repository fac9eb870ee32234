#include "app/content_view.h"

#include <numbers>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/screen_events.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/scripted_session.h"
#include "tests/support/temporary_folder.h"

namespace kalvo::app {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;
using testing::UnorderedElementsAre;

constexpr const char* kHint = "Utilizza la barra di ricerca o il Globo per trovare città online...";

constexpr const char* kCatalogue =
    "luogo;provincia;regione;centralina;kwh_1kw_annui;kwh_2kw_annui;kwh_3kw_annui;latitude;"
    "longitude\n"
    "Roma;RM;Lazio;;3200;3200;3200;41.89;12.48\n"
    "Romano d'Ezzelino;VI;Veneto;;2600;2700;2800;45.77;11.76\n"
    "Aosta;ao;Valle d'Aosta;;2100;;;45.74;7.32\n"
    "Ayas;AO;Valle d'Aosta;;2600;2600;2600;;\n"
    "Serravalle;SM;San Marino;LIPR;2900;2950;3000;43.97;12.48\n"
    "Città del Vaticano;SCV;Vaticano;LIRU;2700;2750;2800;41.9;12.45\n";

constexpr const char* kRegions =
    R"({"features":[{"properties":{"regione":"Lazio"},"geometry":{"type":"Polygon",)"
    R"("coordinates":[[[12,42],[13,42],[13,43],[12,42]]]}}]})";

constexpr const char* kSearchUrl = "https://site.test/en/server/search/query3?query=";
constexpr const char* kReverseUrl =
    "https://names.test/reverse?lat=10.5&lon=20.0&format=json&accept-language=it&zoom=10";
constexpr const char* kTwoPlaces =
    R"({"results":[{"name":"Roma","country":"Italy","lat":41.9,"lon":12.5,"url":"roma","iso2":"IT"},)"
    R"({"name":"Rome","country":"USA","lat":34.25,"lon":-85.16,"url":"rome","iso2":"US"}]})";
constexpr const char* kRomaLabel = "Roma (Italy) [lat: 41.9, lon: 12.5]";
constexpr const char* kRomeLabel = "Rome (USA) [lat: 34.25, lon: -85.16]";

std::string climateUrl(const std::string& slug) {
    return "https://site.test/en/weather/forecast/modelclimate/" + slug;
}

class RecordingPasteboard final : public platform::Pasteboard {
 public:
    void setString(std::string_view text) override { contents = text; }
    std::string contents;
};

class ContentViewTest : public testing::Test {
 protected:
    ContentViewTest() { folder.write("comuni_italia.csv", kCatalogue); }

    void choose(const std::string& country) {
        state.selectedCountry = country;
        state.onCountryChanged(country);
    }

    /// The three pages that a climate download without a cloud chart takes.
    void answerClimate(const std::string& slug) {
        session.answer(climateUrl(slug), R"(<img id="blooimage" data-url="//c.test/wind_speeds">)"
                                         R"(<img id="blooimage" data-url="//c.test/wind_rose">)");
        session.answer(
            "https://c.test/wind_speeds",
            R"({"series":[{"name":"20-30","data":[31,28,31,30,31,30,31,31,30,31,30,31]}]})");
        session.answer("https://c.test/wind_rose", R"({"series":[{"name":"<2","data":[7]}]})");
    }

    tests::TemporaryFolder folder;
    tests::RecordingDiagnostics diagnostics;
    tests::ScriptedSession session;
    RecordingPasteboard pasteboard;
    platform::Bundle bundle{folder.path()};
    engine::LocationParser parser{bundle, diagnostics};
    online::MeteoblueScraper scraper{
        session,
        {.meteoblue = "https://site.test", .nominatim = "https://names.test"},
        diagnostics};
    ContentView state{{.parser = parser,
                       .scraper = scraper,
                       .pasteboard = pasteboard,
                       .diagnostics = diagnostics,
                       .bundle = bundle}};
};

TEST_F(ContentViewTest, StartsOnTheOnlineEntryWithoutAPlace) {
    state.initializeDatabase();
    EXPECT_EQ(state.selectedCountry, "Altre località online");
    EXPECT_THAT(state.countries,
                ElementsAre("Altre località online", "Italia", "San Marino", "Città del Vaticano"));
    EXPECT_EQ(state.allLocations.size(), 6u);
    EXPECT_THAT(state.filteredLocationNames, IsEmpty());
    EXPECT_FALSE(state.regionMapData.has_value());
    EXPECT_EQ(state.resultText, "Seleziona una località valida.");
    EXPECT_EQ(state.detailsText, "");
    EXPECT_THAT(state.currentDistribution.at("Gen"), ElementsAre(1, 4, 11, 13, 2, 0, 0));
    EXPECT_THAT(state.provinceWindMap,
                UnorderedElementsAre(Pair("RM", 3200), Pair("VI", 2600), Pair("AO", 2600),
                                     Pair("SM", 2900), Pair("SCV", 2700)));
}

TEST_F(ContentViewTest, OffersEachCountryItsPlaces) {
    folder.write("regioni.json", kRegions);
    state.initializeDatabase();
    choose("Italia");
    EXPECT_THAT(state.filteredLocationNames,
                ElementsAre("Aosta (ao)", "Ayas (AO)", "Roma (RM)", "Romano d'Ezzelino (VI)"));
    EXPECT_EQ(state.selectedLocationLabel, "Aosta (ao)");
    EXPECT_EQ(state.targetName, "Aosta");
    EXPECT_TRUE(state.regionMapData.has_value());
    EXPECT_FALSE(state.provinceMapData.has_value());

    choose("San Marino");
    EXPECT_THAT(state.filteredLocationNames, ElementsAre("Serravalle (SM) - LIPR"));
    EXPECT_FALSE(state.regionMapData.has_value());
    choose("Città del Vaticano");
    EXPECT_THAT(state.filteredLocationNames, ElementsAre("Città del Vaticano (SCV) - LIRU"));
}

TEST_F(ContentViewTest, TheOnlineEntryKeepsTheMapsAndShowsAHint) {
    folder.write("regioni.json", kRegions);
    state.initializeDatabase();
    choose("Italia");
    const std::string details = state.detailsText;
    state.selectedRegion = "Lazio";
    choose("Altre località online");
    EXPECT_TRUE(state.regionMapData.has_value());
    EXPECT_FALSE(state.selectedRegion.has_value());
    EXPECT_THAT(state.filteredLocationNames, ElementsAre(kHint));
    EXPECT_EQ(state.selectedLocationLabel, kHint);
    EXPECT_EQ(state.resultText, "Seleziona una località valida.");
    EXPECT_EQ(state.detailsText, details);
}

TEST_F(ContentViewTest, ACountryWithoutPlacesKeepsTheSelection) {
    state.selectedLocationLabel = "Roma (RM)";
    choose("Italia");
    EXPECT_THAT(state.filteredLocationNames, IsEmpty());
    EXPECT_EQ(state.selectedLocationLabel, "Roma (RM)");
    EXPECT_EQ(state.resultText, "Seleziona una località valida.");
}

TEST_F(ContentViewTest, NarrowsTheListToTheTypedText) {
    state.initializeDatabase();
    choose("Italia");
    state.filterLocations(" \tROMA\n");
    EXPECT_THAT(state.filteredLocationNames, ElementsAre("Roma (RM)", "Romano d'Ezzelino (VI)"));
    EXPECT_EQ(state.selectedLocationLabel, "Roma (RM)");
    EXPECT_EQ(state.detailsText,
              "Lazio - produzione singola turbina 2 kW: 3.984 kWh/anno (Stime Centraline)");

    state.filterLocations("xyz");
    EXPECT_THAT(state.filteredLocationNames, IsEmpty());
    EXPECT_EQ(state.selectedLocationLabel, "Roma (RM)");
    state.filterLocations("  ");
    EXPECT_EQ(state.filteredLocationNames.size(), 4u);
    EXPECT_EQ(state.selectedLocationLabel, "Aosta (ao)");
}

TEST_F(ContentViewTest, WritesTheFourTexts) {
    state.initializeDatabase();
    choose("Italia");
    state.selectedLocationLabel = "Roma (RM)";
    state.quantityString = "3";
    state.calculate();
    // Yield 3200: 1992 kWh for 1 kW, 3984 for 2 kW; sky of the centre: 1289, 2579, 3868 a plant.
    EXPECT_EQ(state.resultText,
              "Produzione Lorda: 11.952 kWh/anno\nCoeff. di Correzione: 70%\n"
              "Produzione Attesa: 8.366 kWh/anno");
    EXPECT_EQ(state.pvDetailsText,
              "Stima produzione solare per impianto 2 kWp:\n• 1 kWp: 1.289 kWh/anno\n"
              "• 2 kWp: 2.579 kWh/anno\n• 3 kWp: 3.868 kWh/anno");
    EXPECT_EQ(state.pvResultText,
              "Produzione Solare Lorda: 7.737 kWh/anno\nCoefficiente di Correzione: 70%\n"
              "Produzione Solare Attesa: 5.416 kWh/anno");
    state.copyResult();
    EXPECT_EQ(pasteboard.contents, state.detailsText + "\n\n" + state.resultText);
}

TEST_F(ContentViewTest, ReadsTheQuantityAsAWholeNumber) {
    state.initializeDatabase();
    choose("Italia");
    state.selectedLocationLabel = "Roma (RM)";
    const auto gross = [this](const char* quantity) {
        state.quantityString = quantity;
        state.calculate();
        return state.resultText.substr(0, state.resultText.find('\n'));
    };
    const std::string one = "Produzione Lorda: 3.984 kWh/anno";
    for (const char* text : {"1", "", "abc", " 2", "2 ", "2.5", "+", "-", "+-2", "0x2",
                             "9223372036854775808", "-9223372036854775809"}) {
        EXPECT_EQ(gross(text), one) << text;
    }
    EXPECT_EQ(gross("+4"), "Produzione Lorda: 15.936 kWh/anno");
    EXPECT_EQ(gross("012"), "Produzione Lorda: 47.808 kWh/anno");
    EXPECT_THAT(gross("9223372036854775807"), StartsWith("Produzione Lorda: 36.7"));
    const std::string details = state.detailsText;
    for (const char* text : {"0", "-3", "-9223372036854775808"}) {
        EXPECT_EQ(gross(text), "Inserisci una quantità valida.") << text;
        EXPECT_EQ(state.detailsText, details);
    }
}

TEST_F(ContentViewTest, AnAbsentFigureFallsBackByTurbineSize) {
    state.initializeDatabase();
    choose("Italia");
    state.selectedLocationLabel = "Aosta (ao)";
    for (const auto& [turbineKW, kwh] : {std::pair{1, 2100.0}, {2, 6000.0}, {3, 9000.0}}) {
        state.selectedTurbineKW = turbineKW;
        state.calculate();
        EXPECT_EQ(state.currentDistribution,
                  engine::CalculationEngine::calculateMonthlyWindDistribution(
                      {.kwh = kwh, .lat = 45.74, .lon = 7.32, .region = "Valle d'Aosta"}))
            << turbineKW;
    }
}

TEST_F(ContentViewTest, TurnsTheGlobeOnlyToPlacesWithCoordinates) {
    state.initializeDatabase();
    choose("Italia");
    state.selectedLocationLabel = "Roma (RM)";
    state.calculate();
    EXPECT_DOUBLE_EQ(state.globeCenterLat, 41.89 * std::numbers::pi / 180);
    state.selectedLocationLabel = "Ayas (AO)";
    state.calculate();
    EXPECT_EQ(state.targetLat, std::nullopt);
    EXPECT_EQ(state.targetName, "Ayas");
    EXPECT_DOUBLE_EQ(state.globeCenterLon, 12.48 * std::numbers::pi / 180);
}

TEST_F(ContentViewTest, AnOnlineSearchEndsInTheDownloadOfItsFirstPlace) {
    session.hold(std::string(kSearchUrl) + "roma");
    session.hold(climateUrl("roma"));
    int redraws = 0;
    state.onChanged = [&redraws] { ++redraws; };
    state.searchText = "roma";
    state.performOnlineSearch();
    EXPECT_TRUE(state.isFetchingOnline);

    ASSERT_TRUE(session.release(std::string(kSearchUrl) + "roma", kTwoPlaces));
    EXPECT_EQ(redraws, 1);
    EXPECT_THAT(state.filteredLocationNames, ElementsAre(kRomaLabel, kRomeLabel));
    EXPECT_EQ(state.selectedLocationLabel, kRomaLabel);
    EXPECT_TRUE(state.isOnlineMode);
    EXPECT_TRUE(state.isFetchingOnline) << "the climate download is under way";
    EXPECT_EQ(state.targetLat, 41.9);
    const engine::Location& place = state.onlineLocations.at(kRomaLabel);
    EXPECT_EQ(place.province, "Italy");
    EXPECT_EQ(place.region, "IT");
    EXPECT_EQ(place.kwh3kw, 9000.0);
    EXPECT_EQ(place.source, "Meteoblue Online");

    session.answer("https://c.test/wind_speeds", "{}");
    session.answer("https://c.test/wind_rose", "{}");
    ASSERT_TRUE(session.release(climateUrl("roma"),
                                R"(<img id="blooimage" data-url="//c.test/wind_speeds">)"
                                R"(<img id="blooimage" data-url="//c.test/wind_rose">)"));
    EXPECT_EQ(redraws, 2);
    EXPECT_FALSE(state.isFetchingOnline);
    EXPECT_EQ(state.detailsText,
              "IT - produzione singola turbina 2 kW: 0 kWh/anno (Meteoblue Online)");
    EXPECT_THAT(state.currentDistribution.at("Feb"), ElementsAre(28, 0, 0, 0, 0, 0, 0));
    // Without a cloud chart the offline sky of the latitude stands in.
    EXPECT_EQ(state.currentSolarData.sunny.front(), 7);
}

TEST_F(ContentViewTest, AFailedDownloadGivesTheOfflineResult) {
    session.answer(std::string(kSearchUrl) + "roma", kTwoPlaces);
    session.answer(climateUrl("roma"), tests::ScriptedSession::failure("la rete non risponde"));
    state.searchText = "roma";
    state.performOnlineSearch();
    EXPECT_THAT(
        diagnostics.lines,
        ElementsAre("Meteoblue online fetch failed: la rete non risponde, fallback offline"));
    EXPECT_FALSE(state.isFetchingOnline);
    EXPECT_THAT(state.detailsText, HasSubstr("(Stime Centraline)"));
    const std::string details = state.detailsText;
    const auto distribution = state.currentDistribution;
    state.isOnlineMode = false;
    state.calculate();
    EXPECT_EQ(state.detailsText, details);
    EXPECT_EQ(state.currentDistribution, distribution);
}

TEST_F(ContentViewTest, SearchesThatFindNothingChangeNothing) {
    session.answer(std::string(kSearchUrl) + "roma", kTwoPlaces);
    session.answer(std::string(kSearchUrl) + "nowhere", R"({"results":[]})");
    session.answer(std::string(kSearchUrl) + "cut", tests::ScriptedSession::failure("timeout"));
    answerClimate("roma");
    state.performOnlineSearch();
    EXPECT_THAT(session.requests(), IsEmpty()) << "an empty text starts nothing";

    state.searchText = "roma";
    state.performOnlineSearch();
    const auto names = state.filteredLocationNames;
    state.searchText = "cut";
    state.performOnlineSearch();
    EXPECT_EQ(diagnostics.lines.back(), "Online search error: timeout");
    EXPECT_EQ(state.onlineSearchResults.size(), 2u);
    EXPECT_FALSE(state.isFetchingOnline);

    state.searchText = "nowhere";
    state.performOnlineSearch();
    EXPECT_EQ(state.filteredLocationNames, names);
    EXPECT_EQ(state.selectedLocationLabel, kRomaLabel);
    EXPECT_THAT(state.onlineSearchResults, IsEmpty());
    EXPECT_THAT(state.onlineLocations, IsEmpty());
}

TEST_F(ContentViewTest, TheLastDownloadToFinishDecides) {
    session.answer(std::string(kSearchUrl) + "roma", kTwoPlaces);
    session.hold(climateUrl("roma"));
    session.hold(climateUrl("rome"));
    state.searchText = "roma";
    state.performOnlineSearch();
    state.selectedLocationLabel = kRomeLabel;
    state.calculate();
    EXPECT_EQ(session.heldCount(), 2u);

    session.release(climateUrl("rome"), "no charts here");
    EXPECT_FALSE(state.isFetchingOnline) << "each download clears the flag";
    EXPECT_THAT(state.detailsText, StartsWith("US - "));
    session.release(climateUrl("roma"), "no charts here");
    EXPECT_THAT(state.detailsText, StartsWith("IT - "));
}

TEST_F(ContentViewTest, ATapIsNamedAndSearchedNear) {
    session.hold(kReverseUrl);
    // Rome, Georgia, is farther from the tapped point than Roma.
    session.answer(std::string(kSearchUrl) + "Bangassou", kTwoPlaces);
    answerClimate("roma");
    state.onGlobeTapped(10.5, 20);
    EXPECT_EQ(state.targetLat, 10.5);
    EXPECT_EQ(state.targetLon, 20);
    EXPECT_FALSE(state.isFetchingOnline);
    ASSERT_TRUE(session.release(kReverseUrl, R"({"address":{"city":"Bangassou"}})"));
    EXPECT_EQ(state.searchText, "Bangassou");
    EXPECT_EQ(state.selectedLocationLabel, kRomaLabel);
    EXPECT_THAT(state.detailsText, HasSubstr("(Meteoblue Online)"));
}

TEST_F(ContentViewTest, TheOnlineSourceLeavesCataloguePlacesOffline) {
    state.initializeDatabase();
    choose("Italia");
    state.isOnlineMode = true;
    state.calculate();
    EXPECT_THAT(state.detailsText, HasSubstr("(Stime Centraline)"));
    EXPECT_THAT(session.requests(), IsEmpty());
}

TEST_F(ContentViewTest, ItsEndGivesUpWhatIsUnderWay) {
    session.hold(std::string(kSearchUrl) + "roma");
    session.hold(kReverseUrl);
    {
        ContentView closed({.parser = parser,
                            .scraper = scraper,
                            .pasteboard = pasteboard,
                            .diagnostics = diagnostics,
                            .bundle = bundle});
        closed.searchText = "roma";
        closed.performOnlineSearch();
        closed.onGlobeTapped(10.5, 20);
        EXPECT_EQ(session.heldCount(), 2u);
    }
    EXPECT_EQ(session.heldCount(), 0u);
}

TEST_F(ContentViewTest, FindsImagesInTheCatalogueThenAmongTheFiles) {
    EXPECT_EQ(state.flagImage("Italia"), std::nullopt);
    folder.write("flag_it.png", "");
    EXPECT_EQ(state.flagImage("Italia"), folder.path() / "flag_it.png");
    folder.write("images/flag_it.png", "");
    EXPECT_EQ(state.flagImage("Italia"), folder.path() / "images/flag_it.png");
    EXPECT_EQ(state.flagImage("Altre località online"), std::nullopt);
    folder.write("logo.png", "");
    EXPECT_EQ(state.loadLogoImage(), folder.path() / "logo.png");
}

TEST_F(ContentViewTest, ChangeEventsRunTheirOperations) {
    state.initializeDatabase();
    ScreenEvents events(state);
    state.selectedCountry = "Italia";
    events.fire();
    EXPECT_EQ(state.selectedLocationLabel, "Aosta (ao)");
    state.searchText = "roma";
    events.fire();
    EXPECT_EQ(state.targetName, "Roma");
    state.selectedLocationLabel = "Romano d'Ezzelino (VI)";
    events.fire();
    EXPECT_EQ(state.targetName, "Romano d'Ezzelino");
    state.selectedTurbineKW = 3;
    events.fire();
    EXPECT_THAT(state.detailsText, HasSubstr("turbina 3 kW"));
    state.quantityString = "0";
    events.fire();
    EXPECT_EQ(state.resultText, "Inserisci una quantità valida.");
    state.resultText = "untouched";
    events.fire();
    EXPECT_EQ(state.resultText, "untouched") << "nothing differs from the last redraw";
}

TEST_F(ContentViewTest, ALabelSetByASearchIsDownloadedOnceMoreByItsChangeEvent) {
    ScreenEvents events(state);
    session.answer(std::string(kSearchUrl) + "roma", kTwoPlaces);
    session.hold(climateUrl("roma"));
    session.hold(climateUrl("roma"));
    state.searchText = "roma";
    events.fire();
    state.onChanged = [&events] { events.fire(); };
    state.performOnlineSearch();
    EXPECT_EQ(session.heldCount(), 2u);
}

}  // namespace
}  // namespace kalvo::app
