#include "engine/stations.h"

#include <string>

#include <gtest/gtest.h>

#include "engine/wind_scale.h"

namespace kalvo::engine {
namespace {

base::Result<Stations> read(std::string_view rows) {
    return Stations::read(
        std::string("centralina;nome;latitude;longitude;vento_medio_ms;uso;anni\n").append(rows));
}

TEST(StationsTest, ReadsItsTable) {
    const auto stations = read(
        "LICT;Trapani Birgi;37.9142;12.4914;4.22;G;1965-2023\n"
        "WMO 16549;Carloforte;39.137;8.3114;4.75;L;1978-2008\n");
    ASSERT_TRUE(stations) << stations.error().message;
    EXPECT_EQ(*stations->find("WMO 16549"), (Station{.code = "WMO 16549",
                                                     .name = "Carloforte",
                                                     .position = {39.137, 8.3114},
                                                     .meanWind = 4.75,
                                                     .isExposed = true,
                                                     .years = "1978-2008"}));
    EXPECT_FALSE(stations->find("LICT")->isExposed);
    EXPECT_EQ(stations->find("Trapani Birgi"), nullptr);
    for (const char* faulty :
         {"LICT;Birgi;x;12.4914;4.22;G;x\n", "LICT;Birgi;37.9142;;4.22;G;x\n",
          "LICT;Birgi;37.9142;12.4914;-;L;x\n", "LICT;Birgi;37.9142;12.4914;4.22;M;x\n"}) {
        EXPECT_EQ(read(faulty).error().message, "a faulty line: Birgi") << faulty;
    }
    EXPECT_FALSE(Stations::read("nome;latitude\n"));
}

TEST(StationsTest, TellWhatTheWindOfAPlaceRestsOn) {
    const Stations stations = read(
                                  "LIAA;A;42.2;12;4;G;x\n"       // 22.24 km
                                  "LICC;C;42.044966;12;6;L;x\n"  // 5 km: 1/5 - 1/10
                                  "LIBB;B;42.1;12;2;G;x\n"       // 11.12 km
                                  "LIDD;D;42.1;12;2;L;x\n")
                                  .value();
    Location place;
    place.kwh1kw = 2800;
    place.latitude = 42;
    place.longitude = 12;
    place.station = "LIBB";
    const auto estimate = stations.estimateFor(place);
    ASSERT_TRUE(estimate);
    EXPECT_EQ(estimate->mainStation, stations.find("LIBB"));
    EXPECT_EQ(estimate->stationCount, 3U);
    EXPECT_NEAR(estimate->mainStationKm, 11.1195, 0.0001);
    // 0.0899 of 0.0450 + 0.0899 + 0.1.
    EXPECT_NEAR(estimate->mainStationShare, 0.3829, 0.0001);
    // 8 km/h; 0.19 + 0.054 x 2.2222 + 0.0011 x 11.1195.
    EXPECT_NEAR(estimate->meanWind, 2.2222, 0.0001);
    EXPECT_NEAR(estimate->typicalError, 0.3222, 0.0001);

    for (auto unknown : {&Location::kwh1kw, &Location::latitude, &Location::longitude}) {
        Location incomplete = place;
        (incomplete.*unknown).reset();
        EXPECT_FALSE(stations.estimateFor(incomplete));
    }
    for (const char* station : {"", "LIZZ", "LIDD"}) {
        place.station = station;
        EXPECT_FALSE(stations.estimateFor(place)) << station;
    }
}

}  // namespace
}  // namespace kalvo::engine
