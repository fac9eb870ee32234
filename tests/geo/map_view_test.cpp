#include "geo/map_view.h"

#include <map>
#include <sstream>

#include <gtest/gtest.h>

#include "geo/wind_legend.h"
#include "tests/geojson/geojson_texts.h"
#include "tests/support/recording_canvas.h"
#include "tests/support/transcript.h"

namespace kalvo::geo {
namespace {

/// A map that is told what to show and asked what it makes of it, word by word.
class AskedMap {
 public:
    std::string operator()(const std::string& question) {
        answer_.clear();
        std::istringstream lines(question);
        for (std::string line; std::getline(lines, line);) {
            std::istringstream words(line);
            std::string word;
            words >> word >> std::ws;
            tell(word, words);
            ask(word, words);
        }
        return answer_;
    }

 private:
    template <class Value = std::string>
    static Value next(std::istringstream& words) {
        Value value{};
        words >> value;
        return value;
    }
    static std::string rest(std::istringstream& words) {
        std::string text;
        std::getline(words >> std::ws, text);
        return text;
    }

    void tell(const std::string& word, std::istringstream& words) {
        if (word == "clear") *this = {};
        if (word == "feature") {
            const std::string properties = next(words);
            features_.push_back(tests::featureText(properties, rest(words)));
            view_.geoData = tests::mapOf(features_);
        }
        if (word == "type") {
            const std::map<std::string, MapType> types{{"region", MapType::kRegion},
                                                       {"province", MapType::kProvince},
                                                       {"wind", MapType::kWind}};
            view_.mapType = types.at(next(words));
        }
        if (word == "size") words >> size_.width >> size_.height;
        if (word == "unselect") view_.selectedRegion = view_.selectedProvince = {};
        if (word == "region") view_.selectedRegion = rest(words);
        if (word == "province") view_.selectedProvince = rest(words);
        if (word == "wind") words >> view_.provinceWindMap[next(words)];
        if (word == "target") {
            words >> view_.targetLat.emplace() >> view_.targetLon.emplace();
            view_.targetName = rest(words);
        }
        MapGestures& map = view_.gestures;
        if (word == "zoom") words >> map.scale >> map.offset.width >> map.offset.height;
    }

    void ask(const std::string& word, std::istringstream& words) {
        const geojson::GeoMapData map = view_.geoData.value_or(geojson::GeoMapData{});
        const MapBounds bounds = calculateBounds(map.features);
        const MapProjection projection(bounds, size_);
        const MapScene scene = MapScene::make(map, size_);
        tests::RecordingCanvas canvas;
        if (word == "draw") view_.draw(canvas, size_);
        if (word == "outline") view_.drawOutlined(canvas, size_, scene, next<std::size_t>(words));
        if (word == "legend") {
            drawWindLegend(canvas, size_);
            answer({canvas.ofKind("fill").front(), canvas.ofKind("fill").back()});
            answer(canvas.ofKind("words"));
            return;
        }
        if (word == "mark") drawWindLegendMark(canvas, size_, next<double>(words));
        if (!canvas.commands.empty()) answer(canvas.ofKind(rest(words)));
        if (word == "summary") answer({view_.summary()});
        if (word == "bounds") {
            answer_ += fmt::format("{} to {} east, {} to {} north\n", bounds.minLng, bounds.maxLng,
                                   bounds.minLat, bounds.maxLat);
        }
        if (word == "project") {
            const auto lng = next<double>(words);
            const graphics::Point at = projection.project(lng, next<double>(words));
            answer_ += fmt::format("{:.6g} {:.6g}\n", at.x, at.y);
        }
        if (word == "polygons") {
            for (const graphics::Path& polygon :
                 extractPolygons(map.features[0].geometry.coordinates[0], projection)) {
                answer_ += fmt::format("{} points ", polygon.polylines.at(0).points.size());
            }
        }
        if (word == "at") {
            const auto x = next<double>(words);
            const graphics::Point at{x, next<double>(words)};
            const std::string text = view_.toolTip(at, size_, scene);
            const bool isOnFeature = view_.featureAt(at, size_, scene).has_value();
            answer({isOnFeature || !text.empty() ? "\"" + text + "\"" : "nothing"});
        }
    }

    void answer(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) answer_ += line + "\n";
    }

    std::vector<std::string> features_;
    MapView view_{};
    graphics::Size size_{128, 128};
    std::string answer_;
};

TEST(MapViewTest, DrawsAndTellsItsMap) {
    tests::expectTranscript("geo/transcripts/map.txt", AskedMap());
}

}  // namespace
}  // namespace kalvo::geo
