// What the climate of a place costs between its downloads, on the user-interface thread: the
// chart addresses found on the page, and the three chart documents decoded.

#include <cstdint>
#include <initializer_list>
#include <regex>
#include <string>

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "online/chart_decoders.h"
#include "online/climate_page.h"
#include "online/json_document.h"

namespace kalvo::online {
namespace {

std::string placeholder(const std::string& chart) {
    return "<div class=\"chart\"><img id=\"blooimage\" class=\"loading\" alt=\"\" "
           "data-url=\"//charts.example/images/" +
           chart + "?lat=41.9&amp;lon=12.5&amp;format=highcharts\"></div>\n";
}

/// A page of about 600 kB: navigation, tables and scripts, with the charts near its middle.
std::string climatePage() {
    std::string half;
    for (int row = 0; half.size() < 300'000; ++row) {
        half += fmt::format(
            "<tr id=\"row{0}\" class='odd'><td><a href=\"/en/weather/week/place_{0}\" "
            "data-url=\"/en/place?id={0}&amp;x=1\">Località {0}</a></td><td>12.5 °C</td></tr>\n"
            "<script>if (a[{0}] > 0) show(\"#row{0}\");</script>\n",
            row);
    }
    return "<!DOCTYPE html><html><body>" + half + placeholder("wind_speeds") +
           placeholder("wind_rose") + placeholder("cloud_coverage") + half + "</body></html>";
}

/// A chart document: presentation, then one series for each name with that many values.
std::string chart(std::initializer_list<const char*> names, int values) {
    std::string document = R"({"chart": {"type": "column", "height": 400}, "colors": [)";
    for (int color = 0; color < 50; ++color) document += R"("#7cb5ec", )";
    document += R"("#000000"], "title": {"text": "Roma"}, "series": [)";
    const char* separator = "";
    for (const char* const name : names) {
        document += std::string(separator) + R"({"name": ")" + name + R"(", "data": [)";
        for (int value = 0; value < values; ++value) {
            document += (value ? ", " : "") + std::to_string(value % 31) + ".25";
        }
        document += R"(], "color": "#7cb5ec", "tooltip": {"valueSuffix": " days"}})";
        separator = ", ";
    }
    return document + "]}";
}

std::string windChart(int values) {
    return chart({"< 2 km/h", "2-5 km/h", "5-10 km/h", "10-20 km/h", "20-30 km/h", "30-40 km/h",
                  "40-50 km/h", "> 50 km/h"},
                 values);
}

std::string skyChart() {
    return chart({"Sunny", "Partly cloudy", "Overcast", "Precipitation days"}, 12);
}

void setBytes(benchmark::State& state, const std::string& text) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void findChartAddressesOnPage(benchmark::State& state) {
    const std::string page = climatePage();
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(findChartAddresses(page));
    setBytes(state, page);
}
BENCHMARK(findChartAddressesOnPage)->Unit(benchmark::kMicrosecond);

/// The standard library's expressions, the first match of the same three patterns.
void findChartAddressesOnPageStd(benchmark::State& state) {
    const std::string page = climatePage();
    for ([[maybe_unused]] auto _ : state) {
        for (const char* const name : {"wind_speeds", "wind_rose", "cloud_coverage"}) {
            const std::regex pattern(R"(id=["']blooimage["'][^>]+data-url=["']([^"']*)" +
                                     std::string(name) + R"([^"']*)["'])");
            std::smatch match;
            benchmark::DoNotOptimize(std::regex_search(page, match, pattern));
        }
    }
    setBytes(state, page);
}
BENCHMARK(findChartAddressesOnPageStd)->Unit(benchmark::kMicrosecond);

/// The page that is worst for an engine that backtracks: one tag of 1 MiB, full of beginnings.
void findChartAddressesOnHostilePage(benchmark::State& state) {
    std::string page;
    while (page.size() < (1 << 20)) page += "id='blooimage' data-url='";
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(findChartAddresses(page));
    setBytes(state, page);
}
BENCHMARK(findChartAddressesOnHostilePage)->Unit(benchmark::kMillisecond);

void decodeWindSpeeds(benchmark::State& state) {
    const std::string body = windChart(12);
    for ([[maybe_unused]] auto _ : state) {
        const auto document = JsonDocument::parse(body);
        benchmark::DoNotOptimize(parseWindSpeedsJSON(*document));
    }
    setBytes(state, body);
}
BENCHMARK(decodeWindSpeeds)->Unit(benchmark::kMicrosecond);

void decodeWindRose(benchmark::State& state) {
    const std::string body = windChart(16);
    for ([[maybe_unused]] auto _ : state) {
        const auto document = JsonDocument::parse(body);
        benchmark::DoNotOptimize(parseWindRoseJSON(*document));
    }
    setBytes(state, body);
}
BENCHMARK(decodeWindRose)->Unit(benchmark::kMicrosecond);

void decodeCloudCoverage(benchmark::State& state) {
    const std::string body = skyChart();
    for ([[maybe_unused]] auto _ : state) {
        const auto document = JsonDocument::parse(body);
        benchmark::DoNotOptimize(parseCloudCoverageJSON(&*document));
    }
    setBytes(state, body);
}
BENCHMARK(decodeCloudCoverage)->Unit(benchmark::kMicrosecond);

/// Only the parsing of the same document, into a tree of maps and vectors.
void parseWindRoseNlohmann(benchmark::State& state) {
    const std::string body = windChart(16);
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(nlohmann::json::parse(body));
    setBytes(state, body);
}
BENCHMARK(parseWindRoseNlohmann)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kalvo::online
