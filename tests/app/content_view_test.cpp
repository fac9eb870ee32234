#include "app/content_view.h"

#include <numbers>

#include <gmock/gmock.h>

#include "tests/app/test_services.h"
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

constexpr const char* kCatalogue =
    "luogo;provincia;regione;centralina;kwh_1kw_annui;kwh_2kw_annui;kwh_3kw_annui;latitude;"
    "longitude\n"
    "Roma;RM;Lazio;;3200;3200;3200;41.89;12.48\n"
    "Romano d'Ezzelino;VI;Veneto;;2600;2700;2800;45.77;11.76\n"
    "Aosta;ao;Valle d'Aosta;;2100;;;45.74;7.32\n"
    "Ayas;AO;Valle d'Aosta;;2600;2600;2600;;\n"
    "Nulla;NU;Sardegna;;;;;40.3;\n"
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

constexpr const char* kClimatePage = R"(<img id="blooimage" data-url="//c.test/wind_speeds">)"
                                     R"(<img id="blooimage" data-url="//c.test/wind_rose">)";
const std::string kClimateUrl = "https://site.test/en/weather/forecast/modelclimate/";

struct OwnFolder {
    tests::TemporaryFolder folder;
};

class ContentViewTest : public testing::Test,
                        protected OwnFolder,
                        protected TestServices<tests::ScriptedSession> {
 protected:
    ContentViewTest() : TestServices(folder.path()) {
        folder.write("comuni_italia.csv", kCatalogue);
        session.answer(kSearchUrl + std::string("roma"), kTwoPlaces);
    }

    void choose(const std::string& country) {
        if (state.allLocations.empty()) state.initializeDatabase();
        state.selectedCountry = country;
        state.onCountryChanged(country);
    }
    void select(const std::string& label) {
        state.selectedLocationLabel = label;
        state.calculate();
    }
    void search(const std::string& text) {
        state.searchText = text;
        state.performOnlineSearch();
    }

    /// The three pages that a climate download without a cloud chart takes.
    void answerClimate(const std::string& slug) {
        session.answer(kClimateUrl + slug, R"(<img id="blooimage" data-url="//c.test/wind_speeds">)"
                                           R"(<img id="blooimage" data-url="//c.test/wind_rose">)");
        session.answer("https://c.test/wind_speeds", "{}");
        session.answer("https://c.test/wind_rose", R"({"series":[{"name":"<2","data":[7]}]})");
    }

    ContentView state{services};
};

TEST_F(ContentViewTest, StartsOnTheOnlineEntryWithoutAPlace) {
    state.initializeDatabase();
    EXPECT_EQ(state.selectedCountry, "Altre località online");
    EXPECT_THAT(state.countries,
                ElementsAre("Altre località online", "Italia", "San Marino", "Città del Vaticano"));
    EXPECT_EQ(state.allLocations.size(), 7u);
    EXPECT_THAT(state.filteredLocationNames, IsEmpty());
    EXPECT_FALSE(state.regionMapData.has_value());
    EXPECT_EQ(state.resultText, "Seleziona una località valida.");
    EXPECT_EQ(state.detailsText, "");
    EXPECT_THAT(state.currentDistribution.at("Gen"), ElementsAre(1, 4, 11, 13, 2, 0, 0));
    EXPECT_THAT(state.provinceWindMap,
                UnorderedElementsAre(Pair("RM", 3200), Pair("VI", 2600), Pair("AO", 2600),
                                     Pair("SM", 2900), Pair("SCV", 2700)));
}

TEST_F(ContentViewTest, OffersEachCountryItsPlacesAndMaps) {
    folder.write("regioni.json", kRegions);
    folder.write("vatican_province.json", kRegions);
    const struct {
        const char* country;
        std::vector<std::string> places;
        bool hasRegions;
        bool hasProvinces;
    } kCases[] = {
        {"Italia",
         {"Aosta (ao)", "Ayas (AO)", "Nulla (NU)", "Roma (RM)", "Romano d'Ezzelino (VI)"},
         true,
         false},
        {"San Marino", {"Serravalle (SM) - LIPR"}, false, false},
        {"Città del Vaticano", {"Città del Vaticano (SCV) - LIRU"}, false, true},
        // The online entry keeps the maps and shows a hint.
        {"Altre località online",
         {"Utilizza la barra di ricerca o il Globo per trovare città online..."},
         false,
         true},
    };
    for (const auto& [country, places, hasRegions, hasProvinces] : kCases) {
        state.selectedRegion = "Lazio";
        choose(country);
        EXPECT_EQ(state.filteredLocationNames, places);
        EXPECT_EQ(state.selectedLocationLabel, places.front());
        EXPECT_EQ(state.regionMapData.has_value(), hasRegions) << country;
        EXPECT_EQ(state.provinceMapData.has_value(), hasProvinces) << country;
        EXPECT_FALSE(state.selectedRegion.has_value());
    }
    EXPECT_EQ(state.resultText, "Seleziona una località valida.");
    EXPECT_THAT(state.detailsText, StartsWith("Vaticano - ")) << "the last result stays";
}

TEST_F(ContentViewTest, ACountryWithoutPlacesKeepsTheSelection) {
    folder.write("comuni_italia.csv", "");
    state.selectedLocationLabel = "Roma (RM)";
    choose("Italia");
    EXPECT_THAT(state.filteredLocationNames, IsEmpty());
    EXPECT_EQ(state.selectedLocationLabel, "Roma (RM)");
    EXPECT_EQ(state.resultText, "Seleziona una località valida.");
}

TEST_F(ContentViewTest, NarrowsTheListToTheTypedText) {
    state.selectedCountry = "Italia";
    state.initializeDatabase();
    EXPECT_EQ(state.selectedLocationLabel, "Aosta (ao)");
    const struct {
        const char* text;
        std::size_t places;
        const char* selected;
    } kCases[] = {{" \tROMA\n", 2, "Roma (RM)"}, {"xyz", 0, "Roma (RM)"}, {"  ", 5, "Aosta (ao)"}};
    for (const auto& [text, places, selected] : kCases) {
        state.filterLocations(text);
        EXPECT_EQ(state.filteredLocationNames.size(), places) << text;
        EXPECT_EQ(state.selectedLocationLabel, selected) << text;
    }
    EXPECT_EQ(state.targetName, "Aosta");
}

TEST_F(ContentViewTest, WritesTheFourTexts) {
    choose("Italia");
    state.quantityString = "3";
    select("Roma (RM)");
    // Yield 3200: 1992 kWh for 1 kW, 3984 for 2 kW; sky of the center: 1289, 2579, 3868 a plant.
    EXPECT_EQ(state.detailsText,
              "Lazio - produzione singola turbina 2 kW: 3.984 kWh/anno (Stime Centraline)");
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
    EXPECT_EQ(clipboard.contents, state.detailsText + "\n\n" + state.resultText);
}

TEST_F(ContentViewTest, ReadsTheQuantityAsAWholeNumber) {
    choose("Italia");
    select("Roma (RM)");
    const std::string details = state.detailsText;
    const std::string one = "Produzione Lorda: 3.984 kWh/anno";
    const std::string none = "Inserisci una quantità valida.";
    const struct {
        std::vector<const char*> texts;
        std::string firstLine;
    } kCases[] = {
        {{"1", "", "abc", " 2", "2 ", "2.5", "+", "-", "+-2", "0x2", "9223372036854775808",
          "-9223372036854775809"},
         one},
        {{"+4"}, "Produzione Lorda: 15.936 kWh/anno"},
        {{"012"}, "Produzione Lorda: 47.808 kWh/anno"},
        {{"9223372036854775807"}, "Produzione Lorda: 36.7"},
        {{"0", "-3", "-9223372036854775808"}, none},
    };
    for (const auto& [texts, firstLine] : kCases) {
        for (const char* text : texts) {
            state.quantityString = text;
            state.calculate();
            EXPECT_THAT(state.resultText, StartsWith(firstLine)) << text;
            EXPECT_EQ(state.detailsText, details);
        }
    }
}

TEST_F(ContentViewTest, AnAbsentFigureFallsBackByTurbineSize) {
    choose("Italia");
    for (const auto& [turbineKW, kwh] : {std::pair{1, 2100.0}, {2, 6000.0}, {3, 9000.0}}) {
        state.selectedTurbineKW = turbineKW;
        select("Aosta (ao)");
        EXPECT_EQ(state.currentDistribution,
                  engine::CalculationEngine::calculateMonthlyWindDistribution(
                      {.kwh = kwh, .lat = 45.74, .lon = 7.32, .region = "Valle d'Aosta"}))
            << turbineKW;
    }
}

TEST_F(ContentViewTest, TurnsTheGlobeOnlyToPlacesWithCoordinates) {
    choose("Italia");
    select("Roma (RM)");
    EXPECT_DOUBLE_EQ(state.globeCenterLat, 41.89 * std::numbers::pi / 180);
    for (const char* place : {"Ayas (AO)", "Nulla (NU)"}) {
        select(place);
        EXPECT_EQ(state.targetLon, std::nullopt);
        EXPECT_TRUE(std::string(place).starts_with(*state.targetName));
        EXPECT_DOUBLE_EQ(state.globeCenterLat, 41.89 * std::numbers::pi / 180);
        EXPECT_DOUBLE_EQ(state.globeCenterLon, 12.48 * std::numbers::pi / 180);
    }
}

TEST_F(ContentViewTest, AnOnlineSearchEndsInTheDownloadOfItsFirstPlace) {
    session.hold(std::string(kSearchUrl) + "rom");
    session.hold(kClimateUrl + "roma");
    int redraws = 0;
    state.onChanged = [&redraws] { ++redraws; };
    search("rom");
    EXPECT_TRUE(state.isFetchingOnline);

    ASSERT_TRUE(session.release(std::string(kSearchUrl) + "rom", kTwoPlaces));
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

    answerClimate("unused");
    ASSERT_TRUE(session.release(kClimateUrl + "roma", kClimatePage));
    EXPECT_EQ(redraws, 2);
    EXPECT_FALSE(state.isFetchingOnline);
    EXPECT_EQ(state.detailsText,
              "IT - produzione singola turbina 2 kW: 0 kWh/anno (Meteoblue Online)");
    EXPECT_THAT(state.currentDistribution.at("Feb"), ElementsAre(28, 0, 0, 0, 0, 0, 0));
    // Without a cloud chart the offline sky of the latitude stands in.
    EXPECT_EQ(state.currentSolarData.sunny.front(), 7);
}

TEST_F(ContentViewTest, SearchesThatFindNothingChangeNothing) {
    session.answer(std::string(kSearchUrl) + "nowhere", R"({"results":[]})");
    session.answer(std::string(kSearchUrl) + "cut", tests::ScriptedSession::failure("timeout"));
    answerClimate("roma");
    search("");
    EXPECT_THAT(session.requests(), IsEmpty()) << "an empty text starts nothing";

    search("roma");
    const auto names = state.filteredLocationNames;
    search("cut");
    EXPECT_EQ(diagnostics.lines.back(), "Online search error: timeout");
    EXPECT_EQ(state.onlineSearchResults.size(), 2u);
    EXPECT_FALSE(state.isFetchingOnline);

    search("nowhere");
    EXPECT_EQ(state.filteredLocationNames, names);
    EXPECT_EQ(state.selectedLocationLabel, kRomaLabel);
    EXPECT_THAT(state.onlineSearchResults, IsEmpty());
    EXPECT_THAT(state.onlineLocations, IsEmpty());
}

TEST_F(ContentViewTest, TheLastDownloadToFinishDecides) {
    session.hold(kClimateUrl + "roma");
    session.hold(kClimateUrl + "rome");
    search("roma");
    select(kRomeLabel);
    EXPECT_EQ(session.heldCount(), 2u);

    session.release(kClimateUrl + "rome", "no charts here");
    EXPECT_FALSE(state.isFetchingOnline) << "each download clears the flag";
    EXPECT_THAT(state.detailsText, StartsWith("US - "));
    session.release(kClimateUrl + "roma", "no charts here");
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

TEST_F(ContentViewTest, FindsImagesInTheCatalogueThenAmongTheFiles) {
    EXPECT_EQ(state.flagImage("Italia"), std::nullopt);
    for (const char* name : {"flag_it.png", "flag_sm.png", "flag_vc.png", "logo.png"}) {
        folder.write(name, "");
    }
    EXPECT_EQ(state.flagImage("Italia"), folder.path() / "flag_it.png");
    folder.write("images/flag_it.png", "");
    EXPECT_EQ(state.flagImage("Italia"), folder.path() / "images/flag_it.png");
    EXPECT_EQ(state.flagImage("San Marino"), folder.path() / "flag_sm.png");
    EXPECT_EQ(state.flagImage("Città del Vaticano"), folder.path() / "flag_vc.png");
    EXPECT_EQ(state.flagImage("Altre località online"), std::nullopt);
    EXPECT_EQ(state.loadLogoImage(), folder.path() / "logo.png");
}

}  // namespace
}  // namespace kalvo::app
