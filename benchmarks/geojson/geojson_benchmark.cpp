#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

#include <fmt/format.h>
#include <simdjson.h>
#include <QJsonDocument>
#include <nlohmann/json.hpp>

#include "base/bundle.h"
#include "geojson/geojson.h"

/// The path from the text of a GeoJSON file to the model, beside the bare parse that it cannot do
/// without and the trees of two general readers.
namespace {

const std::string& provinces() {
    static const std::string text =
        kalvo::base::readFile(KALVO_SOURCE_DIR "/resources/province.json").value();
    return text;
}

/// 100,000 positions in rings of 1,000: about 2 MB.
const std::string& twoMegabytes() {
    static const std::string text = [] {
        std::string json = R"({"type":"FeatureCollection","features":[)";
        for (int ring = 0; ring < 100; ++ring) {
            json += ring == 0 ? "" : ",";
            json += R"({"type":"Feature","properties":{"sigla":"XX"},"geometry":)"
                    R"({"type":"Polygon","coordinates":[[)";
            for (int i = 0; i < 1000; ++i) {
                const double angle = 2 * std::numbers::pi * i / 1000;
                json += fmt::format("{}[{:.5f},{:.5f}]", i == 0 ? "" : ",",
                                    12 + ring * 0.01 + std::cos(angle), 42 + std::sin(angle));
            }
            json += "]]}}";
        }
        return json + "]}";
    }();
    return text;
}

void decode(benchmark::State& state, const std::string& text) {
    for ([[maybe_unused]] auto _ : state) {
        auto map = kalvo::geojson::decodeGeoJSON(text);
        if (!map) state.SkipWithError(map.error().message.c_str());
        benchmark::DoNotOptimize(map);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void bareParse(benchmark::State& state, const std::string& text) {
    for ([[maybe_unused]] auto _ : state) {
        simdjson::dom::parser parser;
        auto root = parser.parse(text);
        benchmark::DoNotOptimize(root);
    }
}

void warmBareParse(benchmark::State& state, const std::string& text) {
    simdjson::dom::parser parser;
    for ([[maybe_unused]] auto _ : state) {
        auto root = parser.parse(text);
        benchmark::DoNotOptimize(root);
    }
}

void qtTree(benchmark::State& state, const std::string& text) {
    const QByteArray bytes = QByteArray::fromStdString(text);
    for ([[maybe_unused]] auto _ : state) {
        auto document = QJsonDocument::fromJson(bytes);
        benchmark::DoNotOptimize(document);
    }
}

void nlohmannTree(benchmark::State& state, const std::string& text) {
    for ([[maybe_unused]] auto _ : state) {
        auto tree = nlohmann::json::parse(text);
        benchmark::DoNotOptimize(tree);
    }
}

}  // namespace

BENCHMARK_CAPTURE(decode, provinces, provinces())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareParse, provinces, provinces())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(warmBareParse, provinces, provinces())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(qtTree, provinces, provinces())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(nlohmannTree, provinces, provinces())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(decode, twoMegabytes, twoMegabytes())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareParse, twoMegabytes, twoMegabytes())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(warmBareParse, twoMegabytes, twoMegabytes())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(qtTree, twoMegabytes, twoMegabytes())->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(nlohmannTree, twoMegabytes, twoMegabytes())->Unit(benchmark::kMicrosecond);
