#include "geo/map_view.h"

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
            words >> word;
            tell(word, words) || ask(word, words);
        }
        return answer_;
    }

 private:
    static std::string rest(std::istringstream& words) {
        std::string text;
        std::getline(words >> std::ws, text);
        return text;
    }

    bool tell(const std::string& word, std::istringstream& words) {
        if (word == "clear") {
            features_.clear();
            view_ = {};
            size_ = {128, 128};
        } else if (word == "feature") {
            std::string properties;
            words >> properties;
            features_.push_back(tests::featureText(properties, rest(words)));
            view_.geoData = tests::mapOf(features_);
        } else if (word == "type") {
            const std::string type = rest(words);
            view_.mapType = type == "region"     ? MapType::kRegion
                            : type == "province" ? MapType::kProvince
                                                 : MapType::kWind;
        } else if (word == "size") {
            words >> size_.width >> size_.height;
        } else if (word == "unselect") {
            view_.selectedRegion = view_.selectedProvince = {};
        } else if (word == "region") {
            view_.selectedRegion = rest(words);
        } else if (word == "province") {
            view_.selectedProvince = rest(words);
        } else if (word == "wind") {
            std::string code;
            words >> code;
            words >> view_.provinceWindMap[code];
        } else if (word == "target") {
            words >> view_.targetLat.emplace() >> view_.targetLon.emplace();
            view_.targetName = rest(words);
        } else if (word == "zoom") {
            MapGestures& map = view_.gestures;
            words >> map.scale >> map.offset.width >> map.offset.height;
        } else {
            return false;
        }
        return true;
    }

    bool ask(const std::string& word, std::istringstream& words) {
        const geojson::GeoMapData map = view_.geoData.value_or(geojson::GeoMapData{});
        const MapBounds bounds = calculateBounds(map.features);
        if (word == "draw") {
            std::string kind;
            words >> kind;
            answer(tests::drawn(view_, size_, kind));
        } else if (word == "summary") {
            answer_ += view_.summary();
        } else if (word == "bounds") {
            answer_ += fmt::format("{} to {} east, {} to {} north\n", bounds.minLng, bounds.maxLng,
                                   bounds.minLat, bounds.maxLat);
        } else if (word == "project") {
            double lng = 0;
            double lat = 0;
            words >> lng >> lat;
            const graphics::Point at = MapProjection(bounds, size_).project(lng, lat);
            answer_ += fmt::format("{:.6g} {:.6g}\n", at.x, at.y);
        } else if (word == "polygons") {
            for (const graphics::Path& polygon : extractPolygons(
                     map.features[0].geometry.coordinates[0], MapProjection(bounds, size_))) {
                answer_ += fmt::format("{} points ", polygon.polylines.at(0).points.size());
            }
        } else if (word == "at") {
            graphics::Point at{};
            words >> at.x >> at.y;
            const MapScene scene = MapScene::make(map, size_);
            const std::string text = view_.toolTip(at, size_, scene);
            const bool isOnFeature = view_.featureAt(at, size_, scene).has_value();
            answer_ += isOnFeature || !text.empty() ? "\"" + text + "\"\n" : "nothing\n";
        } else if (word == "outline") {
            std::size_t feature = 0;
            words >> feature;
            tests::RecordingCanvas canvas;
            view_.drawOutlined(canvas, size_, MapScene::make(map, size_), feature);
            answer(canvas.commands);
        } else if (word == "legend") {
            tests::RecordingCanvas canvas;
            drawWindLegend(canvas, size_);
            answer({canvas.ofKind("fill").front(), canvas.ofKind("fill").back()});
            answer(canvas.ofKind("words"));
        } else if (word == "mark") {
            double kwh = 0;
            words >> kwh;
            tests::RecordingCanvas canvas;
            drawWindLegendMark(canvas, size_, kwh);
            answer(canvas.commands);
        }
        return true;
    }

    void answer(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) answer_ += line + "\n";
    }

    std::vector<std::string> features_;
    MapView view_{};
    graphics::Size size_{128, 128};
    std::string answer_;
};

TEST(MapView, DrawsAndTellsItsMap) {
    tests::expectTranscript("geo/transcripts/map.txt", AskedMap());
}

}  // namespace
}  // namespace kalvo::geo
