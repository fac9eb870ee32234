#include "online/chart_decoders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "engine/calculation_engine.h"
#include "engine/wind_range.h"

namespace kalvo::online {

namespace {

using engine::CalculationEngine;
using engine::WindRange;
using simdjson::dom::object;

using Counts = std::array<std::int64_t, WindRange::kCount>;

constexpr std::size_t kMonths = 12;
constexpr std::size_t kDirections = 16;

/// The bounds of a 64-bit integer as doubles: [-2^63, 2^63).
constexpr double kIntegerBound = 9223372036854775808.0;

/// Counts scaled to a month are kept within this, so that seven of them add up in 64 bits. Only
/// counts of both signs that all but cancel each other out ever reach it.
constexpr double kScaledBound = 1152921504606846976.0;  // 2^60

/// A value beyond this counts as unreadable: with it, the sum of a year times the largest plant and
/// any number of plants would leave the range of doubles.
constexpr double kValueBound = 1e280;

std::vector<object> seriesOf(const JsonDocument& json) {
    return objectsMember(json.root(), "series").value_or(std::vector<object>{});
}

std::string lowercasedName(object series) {
    return base::lowercased(textMember(series, "name").value_or(""));
}

std::optional<double> readValue(simdjson::dom::element value) {
    std::optional<double> number;
    std::string_view text;
    if (double plain = 0; !value.get(plain)) number = plain;
    if (!value.get(text)) number = base::parseDouble(text);
    // Infinities and what is no number are refused as well.
    return number && std::abs(*number) <= kValueBound ? number : std::nullopt;
}

/// Calls `store(position, value)` for the readable ones among the first `count` values.
template <class Store>
void forEachValue(object series, std::size_t count, Store store) {
    simdjson::dom::array data;
    if (series["data"].get(data)) return;
    std::size_t position = 0;
    for (const simdjson::dom::element value : data) {
        if (position == count) return;
        if (const auto number = readValue(value)) store(position, *number);
        ++position;
    }
}

/// The whole number as an integer, if 64 bits hold it.
std::optional<std::int64_t> integer(double whole) {
    if (!(whole >= -kIntegerBound && whole < kIntegerBound)) return std::nullopt;
    return static_cast<std::int64_t>(whole);
}

std::size_t windClass(object series) {
    static constexpr std::array<std::string_view, WindRange::kCount - 1> kRanges{
        "<2", "2-5", "5-10", "10-20", "20-30", "30-40"};
    std::string name = lowercasedName(series);
    std::erase(name, ' ');
    const auto* const range =
        std::find_if(kRanges.begin(), kRanges.end(),
                     [&](std::string_view text) { return name.find(text) != std::string::npos; });
    return static_cast<std::size_t>(range - kRanges.begin());
}

/// Brings the counts of a month to its number of days, in proportion; what rounding leaves over
/// goes to the largest class. The sums are doubles because counts from the web may be of any size.
Counts broughtToLength(const Counts& counts, int days) {
    double total = 0;
    for (const std::int64_t count : counts) total += static_cast<double>(count);
    if (total < 1) return {days};

    Counts scaled{};
    std::int64_t difference = days;
    for (std::size_t index = 0; index < scaled.size(); ++index) {
        const double share = static_cast<double>(counts[index]) / total * days;
        scaled[index] =
            static_cast<std::int64_t>(std::clamp(std::round(share), -kScaledBound, kScaledBound));
        difference -= scaled[index];
    }
    *std::max_element(scaled.begin(), scaled.end()) += difference;
    return scaled;
}

std::vector<double>* skyCondition(engine::SolarData& data, object series) {
    const std::string name = lowercasedName(series);
    const auto contains = [&](std::string_view text) {
        return name.find(text) != std::string::npos;
    };
    if (contains("precip")) return &data.precip;
    if (contains("sunny") || contains("solegg")) return &data.sunny;
    if (contains("partly") || contains("parz")) return &data.partlyCloudy;
    if (contains("overcast") || contains("copert")) return &data.overcast;
    return nullptr;
}

}  // namespace

engine::WindDistribution parseWindSpeedsJSON(const JsonDocument& json) {
    std::array<Counts, kMonths> months{};
    for (const object series : seriesOf(json)) {
        const std::size_t index = windClass(series);
        forEachValue(series, kMonths, [&](std::size_t month, double value) {
            if (const auto count = integer(std::trunc(value))) months[month][index] = *count;
        });
    }
    engine::WindDistribution distribution;
    distribution.reserve(kMonths);
    for (std::size_t month = 0; month < kMonths; ++month) {
        const Counts days = broughtToLength(months[month], CalculationEngine::daysInMonth[month]);
        distribution.try_emplace(std::string(CalculationEngine::months[month]))
            .first->second.assign(days.begin(), days.end());
    }
    return distribution;
}

engine::WindRoseData parseWindRoseJSON(const JsonDocument& json) {
    std::array<Counts, kDirections> directions{};
    for (const object series : seriesOf(json)) {
        const std::size_t index = windClass(series);
        forEachValue(series, kDirections, [&](std::size_t direction, double value) {
            const auto count = integer(std::round(value));
            if (count) directions[direction][index] = *count;
        });
    }
    engine::WindRoseData rose;
    rose.reserve(kDirections);
    for (std::size_t direction = 0; direction < kDirections; ++direction) {
        rose.try_emplace(static_cast<int>(direction))
            .first->second.assign(directions[direction].begin(), directions[direction].end());
    }
    return rose;
}

std::optional<engine::SolarData> parseCloudCoverageJSON(const JsonDocument* json) {
    if (json == nullptr) return std::nullopt;
    const auto allSeries = objectsMember(json->root(), "series");
    if (!allSeries) return std::nullopt;
    const std::vector<double> none(kMonths, 0.0);
    engine::SolarData data{.sunny = none, .partlyCloudy = none, .overcast = none, .precip = none};
    for (const object series : *allSeries) {
        std::vector<double>* const condition = skyCondition(data, series);
        if (condition == nullptr) continue;
        forEachValue(series, kMonths,
                     [&](std::size_t month, double value) { (*condition)[month] = value; });
    }
    return data;
}

}  // namespace kalvo::online
