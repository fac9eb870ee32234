#include "tools/catalogue/catalogue_maker.h"

#include <filesystem>
#include <tuple>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "base/bundle.h"
#include "engine/wind_scale.h"

namespace kalvo::tools {
namespace {

using testing::HasSubstr;

const std::filesystem::path kResources = std::filesystem::path(KALVO_SOURCE_DIR) / "resources";
constexpr std::string_view kPlaces = "name;sigla;region;lat;lon;istat\n";
constexpr std::string_view kStations =
    "nome;icao;wmo;lat;lon;quota_m;vento_medio_ms;errore_std_ms;uso;grado;mesi_osservati;periodo\n";
constexpr std::string_view kExposures = "chiave;mare_100km;costa_km\n";

std::string table(std::string_view header, std::string_view rows) {
    return std::string(header).append(rows);
}

/// The catalogue without its header line. Place 0 has an exposure of 1.3 m/s, whatever else is not
/// named here none.
std::string catalogueOf(std::string_view places,
                        std::string_view stations,
                        std::string_view exposures = "0;0.5;1000\nLIAA;0;1000\nLIBB;0;1000\n") {
    const auto made = makeCatalogue({.places = table(kPlaces, places),
                                     .stations = table(kStations, stations),
                                     .exposures = table(kExposures, exposures)});
    if (!made) return made.error().message;
    return made->catalogue.substr(made->catalogue.find('\n') + 1);
}

TEST(CatalogueMakerTest, GivesEveryHubItsWind) {
    // The only station is as exposed as the place, so its 2.5 m/s, 9 km/h at 10 m, are the place's:
    // 2800 + 3100 / 12 = 3058.3. At 12 m 9 x 1.2^(1/7) = 9.2375 km/h make 3119.7, at 15 m 9 x
    // 1.5^(1/7) = 9.5367 make 3197.0.
    EXPECT_EQ(catalogueOf("Roma;RM;Lazio;41.8933;12.482886;058091\n",
                          "Urbe;LIRU;162350;41.95;12.5;24;2.5;0.05;G;A;35;1973-2023\n",
                          "058091;0.377;22.2\nLIRU;0.377;22.2\n"),
              "Roma;RM;Lazio;LIRU;3058;3120;3197;41.89330;12.48289\n");
}

TEST(CatalogueMakerTest, WeighsTheStationsOfAPlace) {
    // The place lies at 42 north; a degree of latitude is 111.195 km. Exposures: the place 2.6 x
    // 0.5 = 1.3 m/s, LIAA 2.6 x 0.3 = 0.78, LIBB 2.6 x 0.7 = 1.82, the cape LICC 2.6 x 0.9 + 0.5
    // (on the coast) = 2.84.
    constexpr std::string_view kExposed =
        "0;0.5;1000\nLIAA;0.3;1000\nLIBB;0.7;1000\nLICC;0.9;0\nWMO 12345;0.5;1000\n";
    using Case = std::tuple<const char*, const char*, const char*, double>;
    for (const auto& [what, stations, mainStation, wind] : {
             // At 11.12 and 22.24 km: 2/3 x (2 + 0.52) + 1/3 x (5 - 0.52) = 3.173.
             Case{"two general stations",
                  "A;LIAA;1;42.1;12;5;2;;G;A;36;x\nB;LIBB;2;41.8;12;5;5;;G;A;36;x\n", "LIAA", 3.17},
             // At 10 km 1/10, the cape at 6 km 1/6 - 1/10: 0.6 x 2.52 + 0.4 x (6 - 1.54) = 3.296.
             Case{"an exposed neighbor",
                  "A;LIAA;1;42.089932;12;5;2;;G;A;36;x\nC;LICC;2;42.053959;12;5;6;;L;A;36;x\n",
                  "LIAA", 3.3},
             // In the place itself counts as 1 km, 1 against 1/2: 2/3 x 2.52 + 1/3 x 4.48 = 3.173.
             Case{"a station in the place",
                  "A;LIAA;1;42;12;5;2;;G;A;36;x\nB;LIBB;2;42.0179864;12;5;5;;G;A;36;x\n", "LIAA",
                  3.17},
             Case{"a place's name for a code", "A;Luogo;123456;42;12;5;2;;G;A;36;x\n", "WMO 12345",
                  2},
         }) {
        EXPECT_EQ(catalogueOf("LUOGO;XX;R;42;12;0\n", stations, kExposed),
                  fmt::format("LUOGO;XX;R;{};{:.0f};{:.0f};{:.0f};42.00000;12.00000\n", mainStation,
                              engine::yieldAtHub(wind, 1), engine::yieldAtHub(wind, 2),
                              engine::yieldAtHub(wind, 3)))
            << what;
    }
}

TEST(CatalogueMakerTest, RefusesFaultyTables) {
    constexpr std::string_view kPlace = "A;XX;R;41.9;12.1;0\n";
    constexpr std::string_view kStation = "Piana;LIAA;1;42.0;12.0;5;2;;G;A;36;x\n";
    EXPECT_EQ(catalogueOf("A;XX;R;41.9 N;12.1;0\n", kStation), "no coordinates: A");
    EXPECT_EQ(catalogueOf("A;XX\n", kStation), "line 2 has too few or too many fields");
    EXPECT_EQ(catalogueOf(table(kPlace, kPlace), kStation), "two places are called A (XX) - LIAA");
    EXPECT_EQ(catalogueOf(kPlace, ""), "no station for A");
    EXPECT_EQ(catalogueOf(kPlace, "Piana;LIAA;1;42.0;12.0;5;-;;G;A;36;x\n"),
              "a faulty number: Piana");
    EXPECT_EQ(catalogueOf(kPlace, "Piana;LIAA;1;42.0;12.0;5;2;;M;A;36;x\n"), "no known use: Piana");
    EXPECT_EQ(catalogueOf(kPlace, kStation, "0;0.5;x\n"), "a faulty number: 0");
    EXPECT_EQ(catalogueOf(kPlace, kStation, "1;0.5;2\n"), "no exposure: 0");
    EXPECT_EQ(catalogueOf(kPlace, kStation, "0;0.5;2\n"), "no exposure: LIAA");
    EXPECT_THAT(catalogueOf("", "", "chiave\n"), HasSubstr("too few"));
    EXPECT_THAT(makeCatalogue({.places = "nome\n", .stations = kStations, .exposures = kExposures})
                    .error()
                    .message,
                HasSubstr("the columns are not name;sigla;"));
}

/// What ships, and the sources it is made from.
class ShippedCatalogueTest : public testing::Test {
 protected:
    static std::string read(const std::filesystem::path& file) {
        return base::readFile(kResources / file).value();
    }
    const std::string places = read("source/comuni.csv");
    const std::string stations = read("source/stazioni.csv");
    const std::string exposures = read("source/esposizione.csv");
    const CatalogueSources sources{.places = places, .stations = stations, .exposures = exposures};
};

TEST_F(ShippedCatalogueTest, IsWhatTheToolMakes) {
    const auto made = makeCatalogue(sources);
    ASSERT_TRUE(made) << made.error().message;
    EXPECT_TRUE(read("comuni_italia.csv") == made->catalogue);
    EXPECT_TRUE(read("centraline.csv") == made->stations);
    EXPECT_TRUE(read("README.md").ends_with(made->stationTable));
}

TEST_F(ShippedCatalogueTest, IsNearerToTheTruthThanTheNearestStation) {
    const auto error = checkError(sources);
    ASSERT_TRUE(error);
    EXPECT_NEAR(error->rule, 0.378, 0.0005);
    EXPECT_NEAR(error->nearestStation, 0.620, 0.0005);
}

}  // namespace
}  // namespace kalvo::tools
