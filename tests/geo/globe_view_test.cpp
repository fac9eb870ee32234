#include "geo/globe_view.h"

#include <gmock/gmock.h>

#include "geo/globe_projection.h"
#include "tests/support/recording_canvas.h"
#include "tests/support/transcript.h"

namespace kalvo::geo {
namespace {

using engine::CountryRing;
using testing::ElementsAre;
using tests::RecordingCanvas;

constexpr graphics::Size kView{230, 230};

GlobeView viewFrom(double lat, double lon) {
    GlobeView view{};
    view.centerLat = toRadians(lat);
    view.centerLon = toRadians(lon);
    return view;
}

RecordingCanvas drawn(const GlobeView& view, const std::vector<CountryRing>& rings) {
    GlobeScene scene = GlobeScene::make(rings);
    RecordingCanvas canvas;
    view.draw(canvas, kView, scene);
    return canvas;
}

TEST(GlobeViewTest, DrawsFromTheBackgroundUp) {
    GlobeView view = viewFrom(0, 0);
    view.targetLat = 0;
    view.targetLon = 30;  // whose sine is a half
    view.targetName = "Roma";
    // Seen are 3 x 37 + 2 x 39 points of parallels, every 5 degrees from -90 to 90, at latitude 60
    // to 95 (cos 60 cos 95 = -0.04); and of meridians 7 x 35, and 2 x 2 of those of 120 degrees,
    // whose ends at 85 degrees (cos 120 cos 85 = -0.04) look over the rim.
    EXPECT_THAT(
        drawn(view, {{{0, 0}, {0, 30}, {30, 0}}}).commands,
        ElementsAre("disc #0c1d2d 115,115 100", "ring #1f5f7a 2 115,115 100",
                    "lines #12354c 1 5 of 189 points", "lines #12354c 1 11 of 249 points",
                    "lines #2ebd5e 1.2 open 115,115 165,115 115,65", "ring #ff3b30 2 165,115 8",
                    "disc #ff3b30 165,115 3", "text Roma #ffffff 11 bold 165,99"));
}

TEST(GlobeViewTest, MarksOnlyATargetOnTheNearSide) {
    for (const int lon : {90, 92, 180}) {
        GlobeView view = viewFrom(0, 0);
        view.targetLat = 0;
        EXPECT_EQ(drawn(view, {}).ofKind("disc").size(), 1u) << "half a target";
        view.targetLon = lon;
        EXPECT_EQ(drawn(view, {}).ofKind("disc").size(), lon == 90 ? 2u : 1u) << lon;
    }
}

TEST(GlobeViewTest, ContinentsStandInForMissingCountries) {
    tests::expectTranscript("geo/transcripts/continents.txt", [](const std::string& question) {
        std::string lines = drawn(viewFrom(std::stod(question), 0), {}).ofKind("lines").back();
        for (std::size_t at = 0; (at = lines.find(" open", at)) != std::string::npos;) {
            lines.replace(at, 1, "\n");
        }
        return lines;
    });
    EXPECT_EQ(drawn(viewFrom(90, 0), {{{80, 0}, {80, 10}}}).ofKind("lines").back(),
              "lines #2ebd5e 1.2 open 115,132.365 118.015,132.101");
}

TEST(GlobeViewTest, SplitsALineAtItsHiddenStretch) {
    // In sight, behind, in sight again. A degree is sin d x 100 points from the center: 17.3648 at
    // 10, 34.2020 at 20, 8.7156 at 5 (8.6824 of them east).
    const std::vector<CountryRing> rings{
        {{0, 0}, {10, 0}, {0, 180}, {0, 10}, {0, 20}}, {}, {{0, 180}}, {{5, 5}, {0, 1.7e308}}};
    EXPECT_EQ(drawn(viewFrom(0, 0), rings).ofKind("lines").back(),
              "lines #2ebd5e 1.2 open 115,115 115,97.6352 open 132.365,115 149.202,115 open "
              "123.682,106.284");
    // Seen up to cos d = -0.05, which is 92.87 degrees.
    EXPECT_EQ(drawn(viewFrom(0, 0), {{{0, 90}, {0, 92}, {0, 93}}}).ofKind("lines").back(),
              "lines #2ebd5e 1.2 open 215,115 214.939,115");
}

}  // namespace
}  // namespace kalvo::geo
