#include "engine/location_parser.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <limits>
#include <map>
#include <string>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "engine/csv_reader.h"

namespace kalvo::engine {

namespace {

constexpr std::string_view kCatalogueFile = "comuni_italia.csv";

/// Where a column that the header does not name stands: beyond every line's last field.
constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

/// The positions of the columns that make a place.
struct Columns {
    std::size_t city;
    std::size_t province;
    std::size_t region;
    std::size_t station;
    std::size_t kwh1kw;
    std::size_t kwh2kw;
    std::size_t kwh3kw;
    std::size_t latitude;
    std::size_t longitude;

    /// How many fields of a line are of any use.
    [[nodiscard]] std::size_t fieldLimit() const {
        std::size_t limit = 0;
        for (const std::size_t position :
             {city, province, region, station, kwh1kw, kwh2kw, kwh3kw, latitude, longitude}) {
            if (position != kNowhere) limit = std::max(limit, position + 1);
        }
        return limit;
    }
};

Columns takeHeader(std::string_view& text) {
    CsvRow names;
    readRow(text, kNowhere, names);
    std::map<std::string, std::size_t, std::less<>> positions;
    for (std::size_t position = 0; position < names.size(); ++position) {
        const std::string_view name = base::trimmedSpacesAndNewlines(names[position]);
        positions.insert_or_assign(base::lowercased(name), position);
    }
    const auto column = [&positions](std::string_view name, std::size_t unnamed = kNowhere) {
        const auto found = positions.find(name);
        return found == positions.end() ? unnamed : found->second;
    };
    return {
        .city = column("luogo"),
        .province = column("provincia"),
        .region = column("regione"),
        .station = column("centralina"),
        .kwh1kw = column("kwh_1kw_annui", 3),
        .kwh2kw = column("kwh_2kw_annui", 4),
        .kwh3kw = column("kwh_3kw_annui", 5),
        .latitude = column("latitude"),
        .longitude = column("longitude"),
    };
}

std::optional<double> numberIn(const CsvRow& fields, std::size_t position) {
    if (position >= fields.size()) return std::nullopt;
    const std::string_view field = fields[position];
    std::optional<double> number = base::parseDouble(field);
    if (!number && field.find(',') != std::string_view::npos) {
        std::string withPoint(field);
        std::replace(withPoint.begin(), withPoint.end(), ',', '.');
        number = base::parseDouble(withPoint);
    }
    return number;
}

/// Whether a line is long enough to name a place.
bool namesPlace(const CsvRow& fields, const Columns& columns) {
    return std::max({columns.city, columns.province, columns.region}) < fields.size();
}

Location readPlace(const CsvRow& fields, const Columns& columns) {
    const std::string_view city = base::trimmedSpaces(fields[columns.city]);
    const std::string_view province = base::trimmedSpaces(fields[columns.province]);
    // A station of blanks is one without a name, not none.
    const bool hasStation = columns.station < fields.size() && !fields[columns.station].empty();
    const std::string_view station =
        hasStation ? base::trimmedSpaces(fields[columns.station]) : std::string_view{};
    std::string label;
    label.reserve(city.size() + province.size() + station.size() + std::strlen(" () - "));
    label.append(city).append(" (").append(province).append(")");
    if (hasStation) label.append(" - ").append(station);
    return {
        .label = std::move(label),
        .city = std::string(city),
        .province = std::string(province),
        .region = std::string(base::trimmedSpaces(fields[columns.region])),
        .kwh1kw = numberIn(fields, columns.kwh1kw),
        .kwh2kw = numberIn(fields, columns.kwh2kw),
        .kwh3kw = numberIn(fields, columns.kwh3kw),
        .latitude = numberIn(fields, columns.latitude),
        .longitude = numberIn(fields, columns.longitude),
        .station = std::string(station),
        .stationOwner = "",
        .source = kCatalogueFile,
    };
}

std::vector<Location> readPlaces(std::string_view text) {
    // Shorter than the catalogue's lines of 63 bytes, so that the vector never grows, which would
    // move every place.
    constexpr std::size_t kShortLine = 56;
    const Columns columns = takeHeader(text);
    const std::size_t fieldLimit = columns.fieldLimit();
    std::vector<Location> places;
    places.reserve(text.size() / kShortLine);
    CsvRow fields;
    while (!text.empty()) {
        readRow(text, fieldLimit, fields);
        if (namesPlace(fields, columns)) places.push_back(readPlace(fields, columns));
    }
    return places;
}

base::Result<std::string> utf8Text(std::string bytes) {
    if (!base::isValidUtf8(bytes)) {
        return base::Failure({"FileRead", EILSEQ, "the file is not UTF-8 text"});
    }
    return bytes;
}

}  // namespace

LocationParser& LocationParser::shared() {
    static LocationParser parser(base::Bundle::main(), base::Diagnostics::standardOutput());
    return parser;
}

base::Result<std::string> LocationParser::readText(const std::filesystem::path& path) {
    constexpr std::string_view kByteOrderMark = "\uFEFF";
    auto text = base::readFile(path);
    if (text && text->starts_with(kByteOrderMark)) text->erase(0, kByteOrderMark.size());
    return text;
}

void LocationParser::prefetchLocations() {
    prefetched_ = std::async([this] { return readCatalogue(); });
}

Catalogue LocationParser::loadLocations() {
    CatalogueReading catalogue = prefetched_.valid() ? prefetched_.get() : readCatalogue();
    if (!catalogue) {
        diagnostics_.print(catalogue.error());
        return {};
    }
    return std::move(*catalogue);
}

const Stations& LocationParser::loadStations() {
    if (stations_) return *stations_;
    stations_.emplace();
    const auto path = bundle_.path("centraline", "csv");
    if (!path) {
        diagnostics_.print("centraline.csv not found in bundle!");
        return *stations_;
    }
    auto stations = readText(*path).and_then(Stations::read);
    if (stations) {
        stations_ = std::move(*stations);
    } else {
        diagnostics_.print("Error loading centraline.csv: " + stations.error().description());
    }
    return *stations_;
}

LocationParser::CatalogueReading LocationParser::readCatalogue() const {
    const std::string file(kCatalogueFile);
    const auto path = bundle_.path("comuni_italia", "csv");
    if (!path) return tl::unexpected(file + " not found in bundle!");
    const base::Result<std::string> text = readText(*path).and_then(utf8Text);
    if (!text) {
        return tl::unexpected("Error loading " + file + ": " + text.error().description());
    }
    return Catalogue(readPlaces(*text));
}

}  // namespace kalvo::engine
