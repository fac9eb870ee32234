#include "engine/location_parser.h"

#include <filesystem>

#include <gmock/gmock.h>

#include "tests/geojson/geojson_texts.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/transcript.h"

namespace kalvo::engine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::outlineText;

const std::string kPlace = "luogo;provincia;regione\nRoma;RM;Lazio\n";
const std::string kBroken = outlineText(R"([[["12.5",41.9]]])");
const std::string kBrokenBecause = "Feature 1: Invalid geometry element";

/// The text with its escapes replaced: \x and two hexadecimal digits for a byte that no text
/// file shows.
std::string unescaped(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && text[i + 1] == 'x') {
            plain += static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16));
            i += 3;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

std::string number(std::optional<double> value) { return value ? fmt::format("{}", *value) : "-"; }

/// A parser on a folder of resources of its own.
class LocationParserTest : public testing::Test {
 protected:
    LocationParser makeParser() { return {bundle, diagnostics}; }
    Catalogue load(const std::string& text) {
        folder.write("comuni_italia.csv", text);
        return makeParser().loadLocations();
    }

    tests::TemporaryFolder folder;
    tests::RecordingDiagnostics diagnostics;
    base::Bundle bundle{folder.path()};
    LocationParser parser{bundle, diagnostics};
};

TEST_F(LocationParserTest, ReadsTheCatalogue) {
    tests::expectTranscript("engine/transcripts/catalogue.txt", [&](const std::string& question) {
        std::string found;
        const Catalogue catalogue = load(unescaped(question));
        for (const Location& place : catalogue) {
            found +=
                fmt::format("{} | {} | {} | {} | {} {} {} kWh | {} {} | {} | {}\n", place.label,
                            place.city, place.province, place.region, number(place.kwh1kw),
                            number(place.kwh2kw), number(place.kwh3kw), number(place.latitude),
                            number(place.longitude), place.station, place.source);
            EXPECT_EQ(catalogue.find(place.label), &place);
        }
        EXPECT_EQ(catalogue.find("Roma"), nullptr) << "a label is the whole of it";
        for (const std::string& line : diagnostics.lines) found += "says: " + line + "\n";
        diagnostics.lines.clear();
        return found;
    });
}

TEST_F(LocationParserTest, SaysWhyThereIsNoCatalogueAndTakesWhatWasReadAheadOnce) {
    parser.prefetchLocations();
    EXPECT_TRUE(parser.loadLocations().empty());
    EXPECT_THAT(diagnostics.lines, ElementsAre("comuni_italia.csv not found in bundle!"));
    std::filesystem::create_directory(folder.path() / "comuni_italia.csv");
    EXPECT_TRUE(parser.loadLocations().empty());
    EXPECT_EQ(diagnostics.lines.back(), "Error loading comuni_italia.csv: Is a directory");
    std::filesystem::remove(folder.path() / "comuni_italia.csv");

    load(kPlace);
    parser.prefetchLocations();
    EXPECT_NE(parser.loadLocations().find("Roma (RM)"), nullptr);
    load("luogo;provincia;regione\nEnna;EN;Sicilia\n");
    EXPECT_NE(parser.loadLocations().find("Enna (EN)"), nullptr);
}

TEST_F(LocationParserTest, CopesWithHugeLinesAndManyLines) {
    std::string text = kPlace;
    text += "Rieti;" + std::string(10'000'000, 'R') + ";Lazio" + std::string(10'000'000, ';');
    for (int line = 0; line < 1'000'000; ++line) text += "\nx;";
    const Catalogue catalogue = load(text + "\nZoagli;GE;Liguria\n");
    EXPECT_EQ(catalogue.size(), 3U);
    EXPECT_NE(catalogue.find("Zoagli (GE)"), nullptr);
}

TEST_F(LocationParserTest, ReadsTheStationsOnceWhenAskedFor) {
    EXPECT_EQ(makeParser().loadStations().size(), 0U);
    folder.write("centraline.csv", "nome\n");
    EXPECT_EQ(makeParser().loadStations().size(), 0U);
    EXPECT_EQ(diagnostics.lines.at(0), "centraline.csv not found in bundle!");
    EXPECT_TRUE(diagnostics.lines.at(1).starts_with("Error loading centraline.csv: the columns"));

    folder.write("centraline.csv",
                 "\uFEFFcentralina;nome;latitude;longitude;vento_medio_ms;uso;anni\n"
                 "LIRU;Roma Urbe;41.95;12.5;2.25;G;1973-2023\n");
    EXPECT_NE(parser.loadStations().find("LIRU"), nullptr);
    std::filesystem::remove(folder.path() / "centraline.csv");
    EXPECT_EQ(parser.loadStations().size(), 1U);
    EXPECT_EQ(diagnostics.lines.size(), 2U);
}

TEST_F(LocationParserTest, ReadsOutlinesWithOrWithoutTheEndingOfTheirName) {
    folder.write("regioni.json", outlineText("[]"));
    folder.write("a.b.json", "\uFEFF" + outlineText("[]"));
    for (const char* name : {"regioni", "regioni.json", "reg.jsonioni.json", "a.b.json"}) {
        EXPECT_TRUE(parser.loadGeoJSON(name)) << name;
    }
    EXPECT_THAT(diagnostics.lines, IsEmpty());
    folder.write("broken.json", kBroken);
    std::filesystem::create_directory(folder.path() / "folder.json");
    for (const char* name : {"missing.json", "", ".json", "broken.json", "broken", "folder.json"}) {
        EXPECT_FALSE(parser.loadGeoJSON(name)) << name;
    }
    EXPECT_THAT(diagnostics.lines,
                ElementsAre("Error parsing GeoJSON broken.json: " + kBrokenBecause,
                            "Error parsing GeoJSON broken: " + kBrokenBecause,
                            "Error parsing GeoJSON folder.json: Is a directory"));
}

TEST_F(LocationParserTest, FindsAndThinsTheWorldsRings) {
    tests::expectTranscript("engine/transcripts/world_rings.txt", [&](const std::string& question) {
        std::string coordinates = question;
        // "ring N" stands for the positions [i, -i] of i from 0 to N - 1.
        if (question.starts_with("ring ")) {
            coordinates = "[[[0,0]";
            for (int i = 1; i < std::stoi(question.substr(5)); ++i) {
                coordinates += fmt::format(",[{},{}]", i, -i);
            }
            coordinates += "]]";
        }
        folder.write("world_countries.json", outlineText(coordinates));
        std::string found;
        LocationParser reader(bundle, diagnostics);
        for (const CountryRing& ring : reader.loadWorldCountryRings()) {
            found += fmt::format("{}:", ring.size());
            for (std::size_t i = 0; i < ring.size(); ++i) {
                if (i > 3 && i + 2 < ring.size()) continue;
                found += fmt::format(" {},{}", ring[i].lat, ring[i].lon);
            }
            found += '\n';
        }
        return found;
    });
    EXPECT_THAT(diagnostics.lines, IsEmpty());
}

TEST_F(LocationParserTest, ReadsTheWorldOnceButTriesAgainAfterAFailure) {
    EXPECT_THAT(parser.loadWorldCountryRings(), IsEmpty());
    folder.write("world_countries.json", kBroken);
    EXPECT_THAT(parser.loadWorldCountryRings(), IsEmpty());
    EXPECT_THAT(diagnostics.lines,
                ElementsAre("Error parsing GeoJSON world_countries.json: " + kBrokenBecause));
    // Once read they are remembered, be they none.
    for (const std::string coordinates : {"[]", "[[[1,2],[3,4],[5,6]]]"}) {
        LocationParser reader(bundle, diagnostics);
        folder.write("world_countries.json", outlineText(coordinates));
        EXPECT_EQ(reader.loadWorldCountryRings().size(), coordinates == "[]" ? 0U : 1U);
        folder.write("world_countries.json", kBroken);
        EXPECT_EQ(reader.loadWorldCountryRings().size(), coordinates == "[]" ? 0U : 1U);
    }
}

TEST_F(LocationParserTest, ReadsTheOutlinesThatShip) {
    const base::Bundle shipped(KALVO_SOURCE_DIR "/resources");
    LocationParser reader(shipped, diagnostics);
    for (const char* name : {"regioni", "province", "san_marino_regioni", "san_marino_province",
                             "vatican_regioni", "vatican_province"}) {
        EXPECT_TRUE(reader.loadGeoJSON(name)) << name;
    }
    const auto& rings = reader.loadWorldCountryRings();
    EXPECT_GT(rings.size(), 1000u);
    for (const CountryRing& ring : rings) ASSERT_LE(ring.size(), 80u);
    EXPECT_THAT(diagnostics.lines, IsEmpty());
}

}  // namespace
}  // namespace kalvo::engine
