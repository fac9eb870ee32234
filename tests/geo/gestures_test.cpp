// Gestures on the map and the globe as transcripts: a line is what the pointer, the fingers, the
// keyboard or the clock does, its answer what has come of it.

#include <sstream>

#include <gtest/gtest.h>

#include "geo/drag_recognizer.h"
#include "geo/globe_gestures.h"
#include "geo/map_gestures.h"
#include "tests/support/transcript.h"

namespace kalvo::geo {
namespace {

double number(std::istringstream& words) {
    std::string word;
    words >> word;
    return std::stod(word);
}

graphics::Point point(std::istringstream& words) {
    const double x = number(words);
    return {x, number(words)};
}

graphics::Size size(std::istringstream& words) {
    const double width = number(words);
    return {width, number(words)};
}

std::chrono::milliseconds milliseconds(std::istringstream& words) {
    return std::chrono::milliseconds(static_cast<int>(number(words)));
}

TEST(Gestures, MoveAndZoomTheMap) {
    MapGestures map;
    constexpr graphics::Size kView{200, 100};
    tests::expectTranscript("geo/transcripts/map_gestures.txt", [&](const std::string& question) {
        std::istringstream words(question);
        std::string word;
        words >> word;
        if (word == "anew") map = {};
        if (word == "pinch") pinchChanged(map, number(words));
        if (word == "lift") pinchEnded(map);
        if (word == "drag") dragChanged(map, size(words));
        if (word == "drop") dragEnded(map);
        if (word == "move") moveBy(map, size(words));
        if (word == "zoom") {
            const double factor = number(words);
            zoomBy(map, factor, point(words), kView);
        }
        if (word == "shows") {
            const graphics::Point shown = viewToMap(map, point(words), kView);
            return fmt::format("{:.9g} {:.9g}", shown.x, shown.y);
        }
        return fmt::format("{:.12g} times, moved by {:.12g} {:.12g}", map.scale, map.offset.width,
                           map.offset.height);
    });
}

TEST(Gestures, TurnTheGlobe) {
    GlobeView globe{};
    GlobeView::Time now = globe.lastDragTime;
    std::string told;
    globe.onGlobeTap = [&](engine::LatLon place) {
        told = fmt::format("tapped {:.9g} {:.9g}, ", place.lat, place.lon);
    };
    tests::expectTranscript("geo/transcripts/globe_gestures.txt", [&](const std::string& question) {
        std::istringstream words(question);
        std::string word;
        words >> word;
        told.clear();
        if (word == "wait") {
            for (const auto end = now + milliseconds(words); now < end;)
                tick(globe, now += kGlobeTick);
        }
        if (word == "center") {
            globe.centerLat = toRadians(number(words));
            globe.centerLon = toRadians(number(words));
        }
        if (word == "drag") {
            const graphics::Size translation = size(words);
            dragChanged(globe, {translation, size(words)}, now);
        }
        if (word == "pause") togglePause(globe);
        if (word == "tap") tap(globe, point(words), {230, 230});
        if (word == "nobody") globe.onGlobeTap = nullptr;
        return fmt::format("{}{:.6f} north {:.6f} east, {}", told, globe.centerLat, globe.centerLon,
                           globe.isAutoRotating ? "turning" : "resting");
    });
}

TEST(Gestures, TellTapsFromDrags) {
    DragRecognizer recognizer;
    GlobeView::Time now{};
    tests::expectTranscript("geo/transcripts/drags.txt", [&](const std::string& question) {
        std::istringstream words(question);
        std::string word;
        words >> word;
        using Press = DragRecognizer::Press;
        if (word == "release") return std::string(recognizer.release() ? "tap" : "no tap");
        const graphics::Point at = point(words);
        if (word == "press") recognizer.press(at, now, Press::kFirst);
        if (word == "again") recognizer.press(at, now, Press::kRepeated);
        if (word != "move") return std::string("pressed");
        const auto pace = milliseconds(words);
        const auto drag = recognizer.move(at, now += pace);
        if (!drag) return std::string("no drag");
        return fmt::format("dragged {:g} {:g}, would end at {:g} {:g}", drag->translation.width,
                           drag->translation.height, drag->predictedEndTranslation.width,
                           drag->predictedEndTranslation.height);
    });
}

TEST(Gestures, GlideFromTheVelocityOfTheLastTenthOfASecond) {
    // 1000 points a second: 250 points on, in steps of whatever size.
    for (const int pace : {1, 10}) {
        DragRecognizer recognizer;
        GlobeView::Time now{};
        recognizer.press({0, 0}, now, DragRecognizer::Press::kFirst);
        std::optional<GlobeDrag> drag;
        for (int x = pace; x <= 300; x += pace) {
            drag = recognizer.move({double(x), 0}, now += std::chrono::milliseconds(pace));
        }
        ASSERT_TRUE(drag);
        EXPECT_NEAR(drag->predictedEndTranslation.width, 300 + 250, 1e-6) << pace;
    }
}

}  // namespace
}  // namespace kalvo::geo
