#include "engine/location_parser.h"

#include <gmock/gmock.h>

#include "tests/support/recording_diagnostics.h"
#include "tests/support/temporary_folder.h"

namespace kalvo::engine {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kHeader =
    "luogo;provincia;regione;centralina;kwh_1kw_annui;kwh_2kw_annui;kwh_3kw_annui;latitude;"
    "longitude\n";

/// A parser on a folder of resources of its own.
class CatalogueLoading : public testing::Test {
 protected:
    Catalogue load(std::string_view text) {
        folder_.write("comuni_italia.csv", text);
        return load();
    }
    Catalogue load() { return makeParser().loadLocations(); }
    LocationParser makeParser() { return {bundle_, diagnostics_}; }

    /// The only place of a catalogue of one line.
    Location onlyPlace(std::string_view header, std::string_view line) {
        const Catalogue catalogue = load(std::string(header).append(line));
        EXPECT_EQ(catalogue.size(), 1U) << line;
        return catalogue.empty() ? Location{} : *catalogue.begin();
    }

    tests::TemporaryFolder folder_;
    tests::RecordingDiagnostics diagnostics_;

 private:
    base::Bundle bundle_{folder_.path()};
};

std::vector<std::string> labels(const Catalogue& catalogue) {
    std::vector<std::string> found;
    for (const Location& place : catalogue) found.push_back(place.label);
    return found;
}

TEST_F(CatalogueLoading, ReadsEveryFieldOfAPlace) {
    const Location rome{.label = "Roma (RM)",
                        .city = "Roma",
                        .province = "RM",
                        .region = "Lazio",
                        .kwh1kw = 1234.5,
                        .kwh2kw = 2469,
                        .kwh3kw = 3703.5,
                        .latitude = 41.89,
                        .longitude = 12.48,
                        .station = "",
                        .stationOwner = "",
                        .source = "comuni_italia.csv"};
    EXPECT_EQ(onlyPlace(kHeader, "Roma;RM;Lazio;;1234,5;2469;3703,5;41,89;12,48"), rome);

    Location withStation = rome;
    withStation.label = "Roma (RM) - Ciampino";
    withStation.station = "Ciampino";
    EXPECT_EQ(onlyPlace(kHeader,
                        " Roma ; RM;\tLazio\u00A0; Ciampino ;1234.5;2469;3703.5;41.89;12.48\r\n"),
              withStation);
    withStation.label = "Roma (RM) - ";
    withStation.station = "";
    EXPECT_EQ(onlyPlace(kHeader, "Roma;RM;Lazio;  ;1234.5;2469;3703.5;41.89;12.48"), withStation);
    EXPECT_THAT(diagnostics_.lines, IsEmpty());
}

TEST_F(CatalogueLoading, FindsColumnsByTheirNames) {
    struct Case {
        const char* what;
        const char* header;
        const char* line;
        std::optional<double> kwh1kw;
        std::optional<double> latitude;
    };
    for (const auto& [what, header, line, kwh1kw, latitude] : {
             Case{"case and blanks", "LUOGO; Provincia\t;\u2003rEgIoNe;x;KWH_1kw_annui ;Latitude\n",
                  "Roma;RM;Lazio;9;1;2", 1, 2},
             Case{"a byte order mark", "\uFEFFluogo;provincia;regione;kwh_1kw_annui;latitude\n",
                  "Roma;RM;Lazio;1;2", 1, 2},
             Case{"any order", "latitude;regione;kwh_1kw_annui;provincia;luogo\n",
                  "2;Lazio;1;RM;Roma", 1, 2},
             Case{"yields by position", "luogo;provincia;regione\n", "Roma;RM;Lazio;1;8;9", 1, {}},
             Case{"a named yield is not read by position",
                  "luogo;provincia;regione;x;kwh_1kw_annui\n",
                  "Roma;RM;Lazio;7;1",
                  1,
                  {}},
             Case{"the later of two", "luogo;provincia;regione;latitude;kwh_1kw_annui;LATITUDE\n",
                  "Roma;RM;Lazio;7;1;2", 1, 2},
             Case{"blanks round the line", "latitude;luogo;provincia;regione;kwh_1kw_annui\n",
                  "\t2;Roma;RM;Lazio;1\u2003", 1, 2},
             Case{"a line too short",
                  "luogo;provincia;regione;x;kwh_1kw_annui;latitude\n",
                  "Roma;RM;Lazio",
                  {},
                  {}},
         }) {
        const Location place = onlyPlace(header, line);
        EXPECT_EQ(place.label, "Roma (RM)") << what;
        EXPECT_EQ(place.kwh1kw, kwh1kw) << what;
        EXPECT_EQ(place.latitude, latitude) << what;
    }
    const Location byPosition = onlyPlace("luogo;provincia;regione\n", "Roma;RM;Lazio;1;8;9");
    EXPECT_EQ(byPosition.kwh2kw, 8);
    EXPECT_EQ(byPosition.kwh3kw, 9);
}

TEST_F(CatalogueLoading, TakesANumberAsAWholeOrNotAtAll) {
    struct Case {
        const char* field;
        std::optional<double> yield;
    };
    for (const auto& [field, yield] :
         {Case{"2590", 2590}, Case{"-0,5", -0.5}, Case{"+1e3", 1000}, Case{".5", 0.5},
          Case{"5.", 5}, Case{"0x1p4", 16}, Case{"1e-400", 0}, Case{"", {}}, Case{" 2590", {}},
          Case{"2590 ", {}}, Case{"2590 kWh", {}}, Case{"n.d.", {}}, Case{"1.234,5", {}},
          Case{"\u00A02590", {}}, Case{",", {}}}) {
        const Location place =
            onlyPlace(kHeader, std::string("Roma;RM;Lazio;;").append(field).append(";2;3;4;5"));
        EXPECT_EQ(place.kwh1kw, yield) << '"' << field << '"';
        EXPECT_EQ(place.kwh2kw, 2) << field;
    }
}

TEST_F(CatalogueLoading, EndsALineAtEveryNewlineCharacter) {
    for (const char* newline :
         {"\n", "\r", "\r\n", "\v", "\f", "\u0085", "\u2028", "\u2029", "\n \t\n\u3000\n"}) {
        std::string text = "luogo;provincia;regione";
        for (const char* line : {" Roma;RM;Lazio ", "Èze à;SV;Liguria", "", "Zoagli;GE"}) {
            text.append(newline).append(line);
        }
        EXPECT_THAT(labels(load(text)), ElementsAre("Roma (RM)", "Èze à (SV)"))
            << testing::PrintToString(newline);
    }
}

TEST_F(CatalogueLoading, KeepsTheLaterOfTwoPlacesWithOneLabel) {
    const Catalogue catalogue = load(std::string(kHeader) +
                                     "Roma;RM;Lazio;;1\n"
                                     "Agliè;TO;Piemonte;;2\n"
                                     "Roma;RM;Lazio;LIRU;3\n"
                                     "Roma;RM;Lazio;;4\n");
    EXPECT_THAT(labels(catalogue), ElementsAre("Agliè (TO)", "Roma (RM)", "Roma (RM) - LIRU"));
    EXPECT_EQ(catalogue.find("Roma (RM)")->kwh1kw, 4);
    EXPECT_EQ(catalogue.find("Roma"), nullptr);
    EXPECT_EQ(catalogue.find("Zoagli (GE)"), nullptr);
}

TEST_F(CatalogueLoading, WithoutPlacesIsEmptyAndSilent) {
    for (const std::string_view text :
         {std::string_view(""), kHeader, std::string_view("\n\n\n"),
          std::string_view("comune;provincia;regione\nRoma;RM;Lazio\n"),
          std::string_view("luogo,provincia,regione\nRoma,RM,Lazio\n"),
          // The header is the first line, whatever it holds.
          std::string_view("\nluogo;provincia;regione\nRoma;RM;Lazio\n"),
          std::string_view("luogo;provincia;regione\nRoma;RM\n;\n")}) {
        EXPECT_TRUE(load(text).empty()) << text;
    }
    EXPECT_THAT(diagnostics_.lines, IsEmpty());
}

TEST_F(CatalogueLoading, SaysOnceWhyThereIsNoCatalogue) {
    EXPECT_TRUE(load().empty());
    EXPECT_THAT(diagnostics_.lines, ElementsAre("comuni_italia.csv not found in bundle!"));

    diagnostics_.lines.clear();
    for (const char* bytes : {"\xFF\xFEl\0u", "luogo\nForl\xEC", "cut off \xE2\x80"}) {
        EXPECT_TRUE(load(std::string(kHeader) + "Roma;RM;Lazio\n" + bytes).empty());
    }
    EXPECT_THAT(diagnostics_.lines,
                Each("Error loading comuni_italia.csv: the file is not UTF-8 text"));
    EXPECT_EQ(diagnostics_.lines.size(), 3U);

    diagnostics_.lines.clear();
    std::filesystem::remove(folder_.path() / "comuni_italia.csv");
    std::filesystem::create_directory(folder_.path() / "comuni_italia.csv");
    EXPECT_TRUE(load().empty());
    EXPECT_THAT(diagnostics_.lines, ElementsAre("Error loading comuni_italia.csv: Is a directory"));
    // A file that cannot even be opened, whoever runs the test.
    EXPECT_EQ(base::readFile(folder_.path() / "none").error().message, "No such file or directory");
}

TEST_F(CatalogueLoading, ReadAheadIsTakenOnceAndSaysWhyOnlyThen) {
    LocationParser parser = makeParser();
    parser.prefetchLocations();
    EXPECT_TRUE(parser.loadLocations().empty());
    EXPECT_THAT(diagnostics_.lines, ElementsAre("comuni_italia.csv not found in bundle!"));

    load(std::string(kHeader) + "Roma;RM;Lazio\n");
    parser.prefetchLocations();
    EXPECT_THAT(labels(parser.loadLocations()), ElementsAre("Roma (RM)"));
    load(std::string(kHeader) + "Enna;EN;Sicilia\n");
    EXPECT_THAT(labels(parser.loadLocations()), ElementsAre("Enna (EN)"));
}

TEST_F(CatalogueLoading, ReadsTheStationsOnceWhenAskedFor) {
    EXPECT_EQ(makeParser().loadStations().size(), 0U);
    folder_.write("centraline.csv", "nome\n");
    EXPECT_EQ(makeParser().loadStations().size(), 0U);
    EXPECT_EQ(diagnostics_.lines.at(0), "centraline.csv not found in bundle!");
    EXPECT_TRUE(diagnostics_.lines.at(1).starts_with("Error loading centraline.csv: the columns"));

    folder_.write("centraline.csv",
                  "\uFEFFcentralina;nome;latitude;longitude;vento_medio_ms;uso;anni\n"
                  "LIRU;Roma Urbe;41.95;12.5;2.25;G;1973-2023\n");
    LocationParser parser = makeParser();
    EXPECT_NE(parser.loadStations().find("LIRU"), nullptr);
    std::filesystem::remove(folder_.path() / "centraline.csv");
    EXPECT_EQ(parser.loadStations().size(), 1U);
    EXPECT_EQ(diagnostics_.lines.size(), 2U);
}

TEST_F(CatalogueLoading, CopesWithHugeLinesAndManyLines) {
    std::string text(kHeader);
    text += "Roma;RM;Lazio" + std::string(10'000'000, ';') + "\n";
    text += "Rieti;" + std::string(10'000'000, 'R') + ";Lazio\n";
    for (int line = 0; line < 1'000'000; ++line) text += "x;\n";
    text += "Zoagli;GE;Liguria\n";
    const Catalogue catalogue = load(text);
    EXPECT_EQ(catalogue.size(), 3U);
    EXPECT_NE(catalogue.find("Roma (RM)"), nullptr);
    EXPECT_NE(catalogue.find("Zoagli (GE)"), nullptr);
}

}  // namespace
}  // namespace kalvo::engine
