// What the work costs on more data than those that ship: the catalogue 1, 10 and 100 times, the
// outlines of maps and globe once and 10 times.

#include <initializer_list>
#include <string>

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <QApplication>
#include <QImage>

#include "app/screen_events.h"
#include "geo/qt/globe_widget.h"
#include "geo/qt/map_widget.h"
#include "tests/geo/reference_globe.h"
#include "tests/support/recording_clipboard.h"
#include "tests/support/temporary_folder.h"
#include "tools/support/tool_application.h"

namespace {

using namespace kalvo;

std::string resource(const char* name) {
    return base::readFile(std::filesystem::path(KALVO_SOURCE_DIR "/resources") / name).value();
}

/// The catalogue so many times, each time under names of its own and still in order.
std::string catalogue(std::int64_t times) {
    const std::string text = resource("comuni_italia.csv");
    const std::size_t headEnd = text.find('\n') + 1;
    std::string grown = text.substr(0, headEnd);
    for (std::int64_t copy = 0; copy < times; ++copy) {
        for (std::size_t at = headEnd; at < text.size();) {
            const std::size_t end = text.find('\n', at) + 1;
            grown.append(fmt::format("{:03} ", copy)).append(text, at, end - at);
            at = end;
        }
    }
    return grown;
}

/// A map's features so many times, one above the other.
std::string outlines(const char* name, std::int64_t times) {
    const std::string text = resource(name);
    constexpr std::string_view kOpening = "\"features\":[";
    const std::size_t first = text.find(kOpening) + kOpening.size();
    const std::size_t end = text.rfind("]}");
    std::string grown = text.substr(0, end);
    for (std::int64_t copy = 1; copy < times; ++copy) {
        grown.append(",").append(text, first, end - first);
    }
    return grown + "]}";
}

/// The state of a window on a catalogue of so many times its size.
struct GrownState {
    explicit GrownState(std::int64_t times) {
        folder.write("comuni_italia.csv", catalogue(times));
        for (const char* map : {"regioni.json", "province.json"}) folder.write(map, resource(map));
    }

    tests::TemporaryFolder folder;
    base::Bundle bundle{folder.path()};
    base::Diagnostics& diagnostics = base::Diagnostics::standardOutput();
    engine::LocationParser parser{bundle, diagnostics};
    tools::NoNetwork network;
    online::MeteoblueScraper scraper{network, online::ServiceOrigins::publicServices(),
                                     diagnostics};
    tests::RecordingClipboard clipboard;
    app::ContentView content{{.parser = parser,
                              .scraper = scraper,
                              .clipboard = clipboard,
                              .diagnostics = diagnostics,
                              .bundle = bundle}};
};

void loadCatalogue(benchmark::State& state) {
    GrownState grown(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        auto places = grown.parser.loadLocations();
        benchmark::DoNotOptimize(places);
    }
}

void chooseItaly(benchmark::State& state) {
    GrownState grown(state.range(0));
    grown.content.initializeDatabase();
    app::ScreenEvents events(grown.content);
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        grown.content.selectedCountry = app::kOnlineCountry;
        events.dispatch();
        state.ResumeTiming();
        grown.content.selectedCountry = "Italia";
        events.dispatch();
    }
}

void keystroke(benchmark::State& state) {
    GrownState grown(state.range(0));
    grown.content.initializeDatabase();
    app::ScreenEvents events(grown.content);
    grown.content.selectedCountry = "Italia";
    events.dispatch();
    const std::string text = "roma";
    std::size_t length = 0;
    for ([[maybe_unused]] auto _ : state) {
        grown.content.searchText = text.substr(0, length++ % (text.size() + 1));
        events.dispatch();
    }
}

void decodeProvinces(benchmark::State& state) {
    const std::string text = outlines("province.json", state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        auto map = geojson::decodeGeoJSON(text);
        benchmark::DoNotOptimize(map);
    }
}

/// A frame of the wind map, rebuilt because the view's size changes from one to the next.
void mapFrame(benchmark::State& state) {
    geo::MapWidget widget;
    widget.setContent(
        {.mapType = geo::MapType::kWind,
         .geoData = *geojson::decodeGeoJSON(outlines("province.json", state.range(0))),
         .selectedRegion = {},
         .selectedProvince = {},
         .provinceWindMap = {},
         .targetLat = {},
         .targetLon = {},
         .targetName = {}});
    int width = 900;
    for ([[maybe_unused]] auto _ : state) {
        widget.resize(width, 600);
        width = 1801 - width;
        benchmark::DoNotOptimize(widget.grab());
    }
}

void globeFrame(benchmark::State& state) {
    std::vector<engine::CountryRing> rings;
    for (std::int64_t copy = 0; copy < state.range(0); ++copy) {
        rings.insert(rings.end(), geo::reference::countries().begin(),
                     geo::reference::countries().end());
    }
    geo::GlobeWidget globe([&rings]() -> const std::vector<engine::CountryRing>& { return rings; });
    globe.resize(geo::reference::kViewSize);
    QImage image = geo::reference::paper(1);
    globe.render(&image);
    QApplication::processEvents();
    double lon = 0;
    for ([[maybe_unused]] auto _ : state) {
        globe.setCenter({0.35, lon += 0.004});
        globe.render(&image);
    }
}

/// Data so many times as large as those that ship.
void grow(benchmark::internal::Benchmark* benchmark, std::initializer_list<std::int64_t> times) {
    benchmark->ArgName("times")->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
    for (const std::int64_t one : times) benchmark->Arg(one);
}

void grownPlaces(benchmark::internal::Benchmark* benchmark) { grow(benchmark, {1, 10, 100}); }
void grownOutlines(benchmark::internal::Benchmark* benchmark) { grow(benchmark, {1, 10}); }

BENCHMARK(loadCatalogue)->Apply(grownPlaces);
BENCHMARK(chooseItaly)->Apply(grownPlaces);
BENCHMARK(keystroke)->Apply(grownPlaces);
BENCHMARK(decodeProvinces)->Apply(grownOutlines);
BENCHMARK(mapFrame)->Apply(grownOutlines);
BENCHMARK(globeFrame)->Apply(grownOutlines);

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
