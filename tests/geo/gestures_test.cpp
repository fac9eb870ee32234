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

/// A point or a size.
template <class Pair = graphics::Point>
Pair pair(std::istringstream& words) {
    const double first = number(words);
    return {first, number(words)};
}

std::chrono::milliseconds milliseconds(std::istringstream& words) {
    return std::chrono::milliseconds(static_cast<int>(number(words)));
}

TEST(GesturesTest, MoveAndZoomTheMap) {
    MapGestures map;
    constexpr graphics::Size kView{200, 100};
    tests::expectTranscript("geo/transcripts/map_gestures.txt", [&](const std::string& question) {
        std::istringstream words(question);
        std::string word;
        words >> word;
        if (word == "anew") map = {};
        if (word == "pinch") pinchChanged(map, number(words));
        if (word == "lift") pinchEnded(map);
        if (word == "drag") dragChanged(map, pair<graphics::Size>(words));
        if (word == "drop") dragEnded(map);
        if (word == "move") moveBy(map, pair<graphics::Size>(words));
        if (word == "zoom") {
            const double factor = number(words);
            zoomBy(map, factor, pair(words), kView);
        }
        if (word == "shows") {
            const graphics::Point shown = viewToMap(map, pair(words), kView);
            return fmt::format("{:.9g} {:.9g}", shown.x, shown.y);
        }
        return fmt::format("{:.12g} times, moved by {:.12g} {:.12g}", map.scale, map.offset.width,
                           map.offset.height);
    });
}

TEST(GesturesTest, TurnTheGlobe) {
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
            const graphics::Size translation = pair<graphics::Size>(words);
            dragChanged(globe, {translation, pair<graphics::Size>(words)}, now);
        }
        if (word == "pause") togglePause(globe);
        if (word == "tap") tap(globe, pair(words), {230, 230});
        if (word == "nobody") globe.onGlobeTap = nullptr;
        return fmt::format("{}{:.6f} north {:.6f} east, {}", told, globe.centerLat, globe.centerLon,
                           globe.isAutoRotating ? "turning" : "resting");
    });
}

TEST(GesturesTest, TellTapsFromDrags) {
    DragRecognizer recognizer;
    GlobeView::Time now{};
    tests::expectTranscript("geo/transcripts/drags.txt", [&](const std::string& question) {
        std::istringstream words(question);
        std::string word;
        words >> word;
        using Press = DragRecognizer::Press;
        if (word == "release") return std::string(recognizer.release() ? "tap" : "no tap");
        const graphics::Point at = pair(words);
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

TEST(GesturesTest, GlideFromTheLastTenthOfASecondHoweverManyMovementsCome) {
    // A point each millisecond: 250 points on.
    DragRecognizer recognizer;
    recognizer.press({0, 0}, {}, DragRecognizer::Press::kFirst);
    std::optional<GlobeDrag> drag;
    for (int x = 1; x <= 300; ++x) {
        drag = recognizer.move({double(x), 0}, GlobeView::Time(std::chrono::milliseconds(x)));
    }
    EXPECT_NEAR(drag.value().predictedEndTranslation.width, 300 + 250, 1e-6);
}

}  // namespace
}  // namespace kalvo::geo
