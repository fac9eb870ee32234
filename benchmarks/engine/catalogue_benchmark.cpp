#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>
#include <libfccp/csv.h>
#include <QFile>
#include <QHash>
#include <QString>
#include <QTextStream>

#include "base/numbers.h"
#include "engine/location_parser.h"

/// The catalogue that ships, loaded by the application and by what else one might have taken.
/// bytes_per_second counts the bytes of the file.

namespace {

using kalvo::engine::Catalogue;
using kalvo::engine::Location;

constexpr const char* kFile = KALVO_SOURCE_DIR "/resources/comuni_italia.csv";

std::int64_t fileSize() { return static_cast<std::int64_t>(std::filesystem::file_size(kFile)); }

void readFileAlone(benchmark::State& state) {
    for ([[maybe_unused]] const auto iteration : state) {
        benchmark::DoNotOptimize(kalvo::base::readFile(kFile));
    }
    state.SetBytesProcessed(state.iterations() * fileSize());
}
BENCHMARK(readFileAlone)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void loadLocations(benchmark::State& state) {
    const kalvo::base::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    kalvo::engine::LocationParser parser(bundle, kalvo::base::Diagnostics::standardOutput());
    for ([[maybe_unused]] const auto iteration : state) {
        const Catalogue catalogue = parser.loadLocations();
        if (catalogue.size() != 7906) state.SkipWithError("not the whole catalogue");
    }
    state.SetBytesProcessed(state.iterations() * fileSize());
}
BENCHMARK(loadLocations)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// Into the same records, by a library made for the purpose. It reads ahead in a second thread,
/// whose time counts.
void fastCppCsvParser(benchmark::State& state) {
    for ([[maybe_unused]] const auto iteration : state) {
        using Reader = io::CSVReader<9, io::trim_chars<' ', '\t'>, io::no_quote_escape<';'>>;
        Reader reader(kFile);
        reader.read_header(io::ignore_extra_column, "luogo", "provincia", "regione", "centralina",
                           "kwh_1kw_annui", "kwh_2kw_annui", "kwh_3kw_annui", "latitude",
                           "longitude");
        std::vector<Location> places;
        char* city = nullptr;
        char* province = nullptr;
        char* region = nullptr;
        char* station = nullptr;
        std::array<double, 5> numbers{};
        while (reader.read_row(city, province, region, station, numbers[0], numbers[1], numbers[2],
                               numbers[3], numbers[4])) {
            std::string label = city;
            label.append(" (").append(province).append(") - ").append(station);
            places.push_back({.label = std::move(label),
                              .city = city,
                              .province = province,
                              .region = region,
                              .kwh1kw = numbers[0],
                              .kwh2kw = numbers[1],
                              .kwh3kw = numbers[2],
                              .latitude = numbers[3],
                              .longitude = numbers[4],
                              .station = station,
                              .stationOwner = "",
                              .source = "comuni_italia.csv"});
        }
        const Catalogue catalogue(std::move(places));
        if (catalogue.size() != 7906) state.SkipWithError("not the whole catalogue");
    }
    state.SetBytesProcessed(state.iterations() * fileSize());
}
BENCHMARK(fastCppCsvParser)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// The straightforward way in a Qt program.
void textStreamAndSplit(benchmark::State& state) {
    const auto number = [](const QString& field) -> std::optional<double> {
        bool isNumber = false;
        const double value = QString(field).replace(',', '.').toDouble(&isNumber);
        return isNumber ? std::optional(value) : std::nullopt;
    };
    for ([[maybe_unused]] const auto iteration : state) {
        QFile file(kFile);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) state.SkipWithError("no file");
        QTextStream stream(&file);
        QHash<QString, qsizetype> columns;
        const QStringList header = stream.readLine().split(';');
        for (qsizetype column = 0; column < header.size(); ++column) {
            columns.insert(header[column].trimmed().toLower(), column);
        }
        std::map<std::string, Location> places;
        while (!stream.atEnd()) {
            const QStringList fields = stream.readLine().trimmed().split(';');
            const auto text = [&](const char* column) {
                return fields[columns.value(column)].trimmed().toStdString();
            };
            const auto value = [&](const char* column) {
                return number(fields[columns.value(column)]);
            };
            Location place{.label = "",
                           .city = text("luogo"),
                           .province = text("provincia"),
                           .region = text("regione"),
                           .kwh1kw = value("kwh_1kw_annui"),
                           .kwh2kw = value("kwh_2kw_annui"),
                           .kwh3kw = value("kwh_3kw_annui"),
                           .latitude = value("latitude"),
                           .longitude = value("longitude"),
                           .station = text("centralina"),
                           .stationOwner = "",
                           .source = "comuni_italia.csv"};
            place.label = place.city + " (" + place.province + ") - " + place.station;
            places.insert_or_assign(place.label, place);
        }
        if (places.size() != 7906) state.SkipWithError("not the whole catalogue");
    }
    state.SetBytesProcessed(state.iterations() * fileSize());
}
BENCHMARK(textStreamAndSplit)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

}  // namespace
