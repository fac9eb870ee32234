#include "app/place_text.h"

#include <gtest/gtest.h>

namespace kalvo::app {
namespace {

TEST(PlaceTextTest, TellsTheMainStationAndTheWindOfThePlace) {
    const engine::Station trapani{.code = "LICT",
                                  .name = "Trapani Birgi",
                                  .position = {37.9142, 12.4914},
                                  .meanWind = 4.22,
                                  .isExposed = false,
                                  .years = "1965-2023"};
    const engine::WindEstimate estimate{.meanWind = 4.05,
                                        .typicalError = 0.4,
                                        .mainStation = &trapani,
                                        .mainStationKm = 10.4,
                                        .mainStationShare = 0.496,
                                        .stationCount = 8};
    // 4.22 m/s are 15.192 km/h, 4.05 are 14.58, 0.4 are 1.44.
    EXPECT_EQ(mainStationText(estimate),
              "Centralina principale LICT: Trapani Birgi, a 10 km;\n"
              "vento medio 15,2 km/h a 10 m (1965–2023)");
    EXPECT_EQ(placeWindText(estimate),
              "Vento medio del luogo: 14,6 km/h ± 1,4 a 10 m;\npeso della centralina: 50%");
}

}  // namespace
}  // namespace kalvo::app
