#include <cstdint>
#include <limits>
#include <sstream>

#include <gtest/gtest.h>

#include "charts/solar_chart_view.h"
#include "charts/wind_chart_view.h"
#include "charts/wind_rose_chart_view.h"
#include "tests/support/recording_canvas.h"
#include "tests/support/transcript.h"

namespace kalvo::charts {
namespace {

/// Reads one datum: "Gen 2 0 3", "4 100 20" or "sunny 10 nan 3"; "max" is the largest count.
template <class Number>
std::vector<Number> numbers(std::istringstream& words) {
    std::vector<Number> read;
    for (std::string word; words >> word;) {
        read.push_back(word == "max" ? std::numeric_limits<Number>::max()
                                     : Number(std::stod(word)));
    }
    return read;
}
void readDatum(WindChartView& view, const std::string& key, std::istringstream& words) {
    const auto read = numbers<std::int64_t>(words);
    view.distribution[key == "none" ? "" : key].assign(read.begin(), read.end());
}
void readDatum(WindRoseChartView& view, const std::string& key, std::istringstream& words) {
    const auto read = numbers<std::int64_t>(words);
    view.roseData[std::stoi(key)].assign(read.begin(), read.end());
}
void readDatum(SolarChartView& view, const std::string& key, std::istringstream& words) {
    engine::SolarData& data = view.solarData;
    (key == "sunny"      ? data.sunny
     : key == "partly"   ? data.partlyCloudy
     : key == "overcast" ? data.overcast
                         : data.precip) = numbers<double>(words);
}

/// What a chart answers to: size W H, clear, data..., draw [KIND], paper [KIND], hit X Y, summary
/// and, the rose, scale.
template <class View>
void expectChart(const std::string& name) {
    View view;
    graphics::Size size{650, 200};
    tests::expectTranscript(name, [&](const std::string& question) {
        std::string answer;
        std::istringstream lines(question);
        for (std::string line; std::getline(lines, line);) {
            std::istringstream words(line);
            std::string word;
            words >> word;
            std::string kind;
            if (word == "size") words >> size.width >> size.height;
            if (word == "clear") view = {};
            if (word == "data") {
                words >> word;
                readDatum(view, word, words);
            }
            if (word == "draw" || word == "paper") {
                words >> kind;
                tests::RecordingCanvas canvas;
                view.draw(canvas, size, word == "draw" ? ChartLook::screen() : ChartLook::paper());
                for (const std::string& command : canvas.ofKind(kind)) answer += command + "\n";
            }
            if (word == "hit") {
                graphics::Point point{};
                words >> point.x >> point.y;
                const auto hit = view.hitTest(point, size);
                answer += (hit ? view.describe(*hit) : "nothing") + "\n";
            }
            if (word == "summary") answer += view.summary() + "\n";
            if constexpr (requires { view.scale(); }) {
                const auto [full, inner, outer] = view.scale();
                if (word != "scale") continue;
                answer += fmt::format("{} at the rim, rings at {} and {}\n", full, inner, outer);
            }
        }
        return answer;
    });
}

TEST(ChartViewsTest, DrawAndTellTheWind) {
    expectChart<WindChartView>("charts/transcripts/wind_chart.txt");
}
TEST(ChartViewsTest, DrawAndTellTheRose) {
    expectChart<WindRoseChartView>("charts/transcripts/wind_rose.txt");
}
TEST(ChartViewsTest, DrawAndTellTheSky) {
    expectChart<SolarChartView>("charts/transcripts/solar_chart.txt");
}

}  // namespace
}  // namespace kalvo::charts
