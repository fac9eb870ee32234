#include "tools/catalogue/catalogue_maker.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include <gmock/gmock.h>

#include "engine/location_parser.h"
#include "tests/support/recording_diagnostics.h"

namespace kalvo::tools {
namespace {

using testing::HasSubstr;
using testing::UnorderedElementsAre;

const std::filesystem::path kResources = std::filesystem::path(KALVO_SOURCE_DIR) / "resources";
constexpr std::string_view kPlaces = "name;sigla;region;lat;lon;istat\n";
constexpr std::string_view kStations =
    "nome;icao;wmo;lat;lon;quota_m;vento_medio_ms;errore_std_ms;uso;grado;mesi_osservati;periodo\n";

std::string table(std::string_view header, std::string_view rows) {
    return std::string(header).append(rows);
}

/// The catalogue without its header line.
std::string catalogueOf(std::string_view places, std::string_view stations) {
    const auto made =
        makeCatalogue({.places = table(kPlaces, places), .stations = table(kStations, stations)});
    if (!made) return made.error().message;
    return made->catalogue.substr(made->catalogue.find('\n') + 1);
}

TEST(CatalogueMaker, GivesEveryHubItsWind) {
    // 2.5 m/s are 9 km/h at 10 m: 2800 + 3100 / 12 = 3058.3. At 12 m 9 x 1.2^(1/7) = 9.2375 km/h
    // make 3119.7, at 15 m 9 x 1.5^(1/7) = 9.5367 make 3197.0.
    EXPECT_EQ(catalogueOf("Roma;RM;Lazio;41.8933;12.482886;058091\n",
                          "Urbe;LIRU;162350;41.95;12.5;24;2.5;0.05;G;A;35;1973-2023\n"),
              "Roma;RM;Lazio;LIRU;3058;3120;3197;41.89330;12.48289\n");
}

TEST(CatalogueMaker, ChoosesTheStationOfAPlace) {
    // A degree of latitude is 111.2 km, one of longitude at 42 degrees 82.6 km.
    constexpr std::string_view kNetwork =
        "Piana;LIAA;1;42.0;12.0;5;2;;G;A;36;x\n"
        "Capo;LICC;2;42.5;12.0;5;6;;L;A;36;x\n"
        "Rimini;LIPR;3;44.0;12.6;5;3;;G;A;36;x\n"
        "Roma Urbe;LIRU;4;41.0;12.0;5;4;;G;A;36;x\n"
        "Baita;;123456;47.0;12.0;5;2;;G;A;36;x\n"
        "Livo;LIVO;654321;46.0;12.0;5;2;;G;A;36;x\n";
    struct Case {
        const char* what;
        const char* place;
        const char* station;
    };
    for (const auto& [what, place, station] : {
             Case{"the nearest", "A;XX;R;41.9;12.1;0", ";LIAA;"},
             Case{"a cape within 15 km", "A;XX;R;42.37;12.0;0", ";LICC;"},
             Case{"a cape beyond 15 km", "A;XX;R;42.36;12.0;0", ";LIAA;"},
             Case{"west is as far as north", "A;XX;R;42.5;11.83;0", ";LICC;"},
             Case{"San Marino", "A;SM;San Marino;42.0;12.0;0", ";LIPR;"},
             Case{"Vatican City", "A;SCV;Vaticano;42.0;12.0;0", ";LIRU;"},
             Case{"without an ICAO code", "A;XX;R;47.0;12.0;0", ";WMO 12345;"},
             Case{"with a place's name for a code", "Livo;XX;R;46.0;12.0;0", ";WMO 65432;"},
         }) {
        EXPECT_THAT(catalogueOf(std::string(place) + "\n", kNetwork), HasSubstr(station)) << what;
    }
}

TEST(CatalogueMaker, RefusesFaultyTables) {
    constexpr std::string_view kPlace = "A;XX;R;41.9;12.1;0\n";
    constexpr std::string_view kStation = "Piana;LIAA;1;42.0;12.0;5;2;;G;A;36;x\n";
    EXPECT_EQ(catalogueOf("A;XX;R;41.9 N;12.1;0\n", kStation), "no coordinates: A");
    EXPECT_EQ(catalogueOf("A;XX\n", kStation), "line 2 has too few or too many fields");
    EXPECT_EQ(catalogueOf(table(kPlace, kPlace), kStation), "two places are called A (XX) - LIAA");
    EXPECT_EQ(catalogueOf(kPlace, ""), "no station for A");
    EXPECT_EQ(catalogueOf(kPlace, "Piana;LIAA;1;42.0;12.0;5;-;;G;A;36;x\n"),
              "a faulty number: Piana");
    EXPECT_EQ(catalogueOf(kPlace, "Piana;LIAA;1;42.0;12.0;5;2;;M;A;36;x\n"), "no known use: Piana");
    EXPECT_THAT(makeCatalogue({.places = "nome\n", .stations = kStations}).error().message,
                HasSubstr("the columns are not name;sigla;"));
}

TEST(ShippedCatalogue, IsWhatTheToolMakes) {
    const auto made = makeCatalogue({
        .places = base::readFile(kResources / "source" / "comuni.csv").value(),
        .stations = base::readFile(kResources / "source" / "stazioni.csv").value(),
    });
    ASSERT_TRUE(made) << made.error().message;
    EXPECT_TRUE(base::readFile(kResources / "comuni_italia.csv").value() == made->catalogue);
    EXPECT_TRUE(base::readFile(kResources / "README.md").value().ends_with(made->stationTable));
}

TEST(ShippedCatalogue, CoversTheCountriesWithPlausibleYields) {
    const base::Bundle bundle(kResources);
    tests::RecordingDiagnostics diagnostics;
    const engine::Catalogue catalogue = engine::LocationParser(bundle, diagnostics).loadLocations();
    EXPECT_THAT(diagnostics.lines, testing::IsEmpty());
    ASSERT_EQ(catalogue.size(), 7906U);

    std::map<std::string, double> bestOfProvince;
    for (const engine::Location& place : catalogue) {
        // From Lampedusa to the Brenner, from Bardonecchia to Otranto.
        EXPECT_TRUE(place.latitude > 35.4 && place.latitude < 47.1) << place.label;
        EXPECT_TRUE(place.longitude > 6.6 && place.longitude < 18.6) << place.label;
        EXPECT_TRUE(place.kwh1kw < place.kwh2kw && place.kwh2kw < place.kwh3kw) << place.label;
        EXPECT_TRUE(place.kwh1kw > 1700 && place.kwh1kw < 6600) << place.label;
        double& best = bestOfProvince[place.province];
        best = std::max(best, place.kwh1kw.value());
    }
    EXPECT_EQ(bestOfProvince.erase("SM") + bestOfProvince.erase("SCV"), 2U);
    EXPECT_EQ(bestOfProvince.size(), 107U);
    // Most provinces stand out from the weakest color of the wind map, few reach the strongest.
    std::vector<std::string> strongest;
    for (const auto& [province, best] : bestOfProvince) {
        if (best > 5900) strongest.push_back(province);
    }
    std::erase_if(bestOfProvince, [](const auto& province) { return province.second <= 2800; });
    EXPECT_EQ(bestOfProvince.size(), 85U);
    EXPECT_THAT(strongest, UnorderedElementsAre("SS", "SU", "TP"));
}

}  // namespace
}  // namespace kalvo::tools
