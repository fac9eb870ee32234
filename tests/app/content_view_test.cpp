// The state without a window: each transcript is a sequence of user actions, each with all that it
// changed. The network stands still: a request waits until "answer PART DOCUMENT" gives the one
// whose address has this part a document of answers/.

#include <array>
#include <map>
#include <numbers>

#include <gtest/gtest.h>
#include <boost/algorithm/string/replace.hpp>

#include "app/screen_events.h"
#include "tests/app/test_services.h"
#include "tests/support/scripted_session.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/transcript.h"

namespace kalvo::app {
namespace {

std::string oneLine(const std::string& text) { return boost::replace_all_copy(text, "\n", " / "); }

std::string number(std::optional<double> value) {
    return value ? fmt::format("{:.6g}", *value) : "none";
}

std::string joined(const std::vector<std::string>& texts) {
    return fmt::format("{}", fmt::join(texts, " | "));
}

std::string nameOf(const std::optional<geojson::GeoMapData>& map) {
    return map ? *map->features[0].property("regione") : "none";
}

/// What the shown figures belong to.
std::string figuresOf(const ContentView& state) {
    if (!state.shownResult) return "samples";
    const ShownResult& result = *state.shownResult;
    EXPECT_EQ(result.downloadTime.has_value(), result.source == DataSource::kMeteoblue);
    constexpr std::array kSources{"from stations", "downloaded", "from a fixed yield"};
    const bool lacksSky = result.downloadTime && !result.isSkyDownloaded;
    return fmt::format("{} x {} kW at {}, {}{}", result.quantity, result.turbineKW,
                       result.place.city, kSources.at(static_cast<std::size_t>(result.source)),
                       lacksSky ? " without sky" : "");
}

/// The state's fields as texts. Of a year of data two months and two sectors are told: enough to
/// see what they were made from.
std::map<std::string, std::string> fieldsOf(const ContentView& state) {
    const auto counts = [](const auto& all, const auto& key) {
        const auto found = all.find(key);
        return found == all.end() ? "none" : fmt::format("{}", fmt::join(found->second, " "));
    };
    const auto sky = [&](std::size_t month) {
        const engine::SolarData& data = state.currentSolarData;
        return fmt::format("{:g} {:g} {:g} {:g}", data.sunny.at(month), data.partlyCloudy.at(month),
                           data.overcast.at(month), data.precip.at(month));
    };
    std::vector<std::string> windMap;
    for (const auto& [code, kwh] :
         std::map(state.provinceWindMap.begin(), state.provinceWindMap.end())) {
        windMap.push_back(fmt::format("{} {:g}", code, kwh));
    }
    const double degrees = 180 / std::numbers::pi;
    return {
        {"places", joined(state.filteredLocationNames)},
        {"best match",
         state.bestMatch() ? state.filteredLocationNames[*state.bestMatch()] : "none"},
        {"nothing found", state.searchFoundNothing() ? "yes" : "no"},
        {"quantity counts as 1", state.quantityCountsAsOne() ? "yes" : "no"},
        {"notice", state.notice()},
        {"figures", figuresOf(state)},
        {"place", state.selectedLocationLabel},
        {"search text", state.searchText},
        {"source", state.isOnlineMode ? "online" : "offline"},
        {"downloading", state.isFetchingOnline ? "yes" : "no"},
        {"wind map", joined(windMap)},
        {"selection",
         state.selectedRegion.value_or("none") + " / " + state.selectedProvince.value_or("none")},
        {"maps", nameOf(state.regionMapData) + ", " + nameOf(state.provinceMapData)},
        {"target", state.targetName.value_or("none") + " " + number(state.targetLat) + " " +
                       number(state.targetLon)},
        {"globe",
         number(state.globeCenterLat * degrees) + " " + number(state.globeCenterLon * degrees)},
        {"result", oneLine(state.resultText)},
        {"details", state.detailsText},
        {"pv result", oneLine(state.pvResultText)},
        {"pv details", oneLine(state.pvDetailsText)},
        {"wind", "Gen " + counts(state.currentDistribution, "Gen") + ", Lug " +
                     counts(state.currentDistribution, "Lug")},
        {"rose",
         "N " + counts(state.currentRoseData, 0) + ", NNE " + counts(state.currentRoseData, 1)},
        {"sky", "Gen " + sky(0) + ", Lug " + sky(6)},
    };
}

class ContentViewTranscriptTest : public testing::TestWithParam<std::string>,
                                  protected TestServices<tests::ScriptedSession> {
 protected:
    ContentViewTranscriptTest() : TestServices(KALVO_SOURCE_DIR "/tests/app/resources") {
        session.holdEverything();
        state.onChanged = [this] {
            changes += "redraws\n";
            events.dispatch();
        };
    }

    /// Does what a line says and returns what it changed.
    std::string perform(const std::string& line) {
        changes.clear();
        const std::size_t end = std::min(line.find(' '), line.size());
        const std::string action = line.substr(0, end);
        std::string argument = line.substr(std::min(end + 1, line.size()));
        if (argument.starts_with('"')) argument = argument.substr(1, argument.size() - 2);
        const std::size_t blank = std::min(argument.find(' '), argument.size());
        if (action == "start") state.initializeDatabase();
        if (action == "country") state.selectedCountry = argument;
        if (action == "type") state.searchText = argument;
        if (action == "place") state.selectedLocationLabel = argument;
        if (action == "size") state.selectedTurbineKW = std::stoi(argument);
        if (action == "quantity") state.quantityString = argument;
        if (action == "map") state.selectedRegion = state.selectedProvince = argument;
        if (action == "search") state.performOnlineSearch();
        if (action == "copy") state.copyResult();
        if (action == "source") {
            state.isOnlineMode = argument == "online";
            state.calculate();
        }
        if (action == "tap") {
            state.onGlobeTapped({std::stod(argument), std::stod(argument.substr(blank))});
        }
        if (action == "answer") answer(argument.substr(0, blank), argument.substr(blank + 1));
        events.dispatch();
        addChanges();
        return changes;
    }

    void answer(const std::string& part, const std::string& document) {
        for (const std::string& url : session.waiting()) {
            if (url.find(part) == std::string::npos) continue;
            session.release(url, document == "failure"
                                     ? tests::ScriptedSession::failure("no network")
                                     : tests::readFile("app/answers/" + document));
            return;
        }
        changes += "nothing waits for that\n";
    }

    void addChanges() {
        const auto fields = fieldsOf(state);
        for (const auto& [name, value] : fields) {
            if (known[name] != value) changes += name + ": " + value + "\n";
        }
        known = fields;
        for (; knownRequests < session.requests().size(); ++knownRequests) {
            const net::HttpRequest& request = session.requests()[knownRequests];
            changes += fmt::format("asks: {} within {} ms\n", request.url, request.timeout.count());
            for (const auto& [name, value] : request.headers) {
                // Told where they are others than the last ones.
                if (std::exchange(knownHeaders[name], value) != value) {
                    changes += "as " + name + ": " + value + "\n";
                }
            }
        }
        for (const std::string& line : diagnostics.lines) changes += "prints: " + line + "\n";
        diagnostics.lines.clear();
        if (!clipboard.contents.empty()) changes += "copies: " + oneLine(clipboard.contents) + "\n";
        clipboard.contents.clear();
    }

    std::string changes;
    std::size_t knownRequests = 0;
    std::map<std::string, std::string> knownHeaders;
    ContentView state{services};
    ScreenEvents events{state};
    std::map<std::string, std::string> known = fieldsOf(state);
};

TEST_P(ContentViewTranscriptTest, IsReproduced) {
    tests::expectTranscript("app/transcripts/" + GetParam() + ".txt",
                            [this](const std::string& line) { return perform(line); });
}

INSTANTIATE_TEST_SUITE_P(,
                         ContentViewTranscriptTest,
                         testing::Values("offline_choices",
                                         "absent_figures",
                                         "online_search",
                                         "globe_tap",
                                         "failed_downloads"),
                         [](const auto& each) { return each.param; });

/// A state on a folder of a case's own.
struct OwnFolder {
    tests::TemporaryFolder folder;
};
class ContentViewStateTest : public testing::Test,
                             protected OwnFolder,
                             protected TestServices<tests::ScriptedSession> {
 protected:
    ContentViewStateTest() : TestServices(folder.path()) {}
    ContentView state{services};
};

TEST_F(ContentViewStateTest, StartsWithExampleDataAndTheFourCountries) {
    EXPECT_EQ(joined(state.countries),
              "Altre località online | Italia | San Marino | Città del Vaticano");
    EXPECT_EQ(state.selectedCountry, "Altre località online");
    EXPECT_EQ(fieldsOf(state).at("wind"), "Gen 1 4 11 13 2 0 0, Lug 2 7 14 8 0 0 0");
}

TEST_F(ContentViewStateTest, KeepsTheSelectionWhereACountryHasNoPlaces) {
    folder.write("comuni_italia.csv", "");
    state.selectedLocationLabel = "Roma (RM)";
    state.initializeDatabase();
    state.onCountryChanged(state.selectedCountry = "Italia");
    EXPECT_EQ(state.filteredLocationNames.size(), 0u);
    EXPECT_EQ(state.selectedLocationLabel, "Roma (RM)");
    EXPECT_EQ(state.resultText, "Seleziona una località valida.");
}

TEST_F(ContentViewStateTest, MeansThePlaceOfExactlyThatNameElseOneThatBeginsSo) {
    folder.write("comuni_italia.csv",
                 "luogo;provincia;regione\nArcinazzo Romano;RM;Lazio\nRoma Nord;RM;Lazio\n"
                 "Roma;RM;Lazio\nRomano d'Ezzelino;VI;Veneto\n");
    state.selectedCountry = "Italia";
    state.initializeDatabase();
    // By code point: Arcinazzo, "Roma (", "Roma N", Romano.
    for (const auto& [text, match] :
         {std::pair{" ROMA ", 1U}, {"roma n", 2U}, {"romano", 3U}, {"ezz", 0U}, {"", 0U}}) {
        state.searchText = text;
        EXPECT_EQ(state.bestMatch(), match) << text;
    }
    state.filterLocations("Ezz");
    EXPECT_EQ(state.shownResult->place.city, "Romano d'Ezzelino");
}

TEST_F(ContentViewStateTest, ShowsTheCountrysFlagAndTheLogo) {
    for (const auto& [country, flag] : {std::pair{"Italia", "flag_it.png"},
                                        {"San Marino", "flag_sm.png"},
                                        {"Città del Vaticano", "flag_vc.png"}}) {
        folder.write(flag, "");
        EXPECT_EQ(state.flagImage(country), folder.path() / flag);
    }
    EXPECT_EQ(state.flagImage("Altre località online"), std::nullopt);
    const auto logo = folder.write("logo.png", "");
    EXPECT_EQ(state.loadLogoImage(), logo);
}

}  // namespace
}  // namespace kalvo::app
