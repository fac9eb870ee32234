// The models' answers as a transcript. What they make of the places that ship is compared in
// reference_figures_test.cpp; here stand the rules, the limits and what no catalogue holds.

#include <cmath>
#include <limits>
#include <numeric>
#include <sstream>

#include <gtest/gtest.h>

#include "engine/calculation_engine.h"
#include "engine/wind_scale.h"
#include "tests/support/transcript.h"

namespace kalvo::engine {
namespace {

/// A number, or nothing for "-"; "max" and "min" are the largest and the smallest count.
std::optional<double> number(std::istringstream& words) {
    std::string word;
    words >> word;
    return word == "-" ? std::nullopt : std::optional(std::stod(word));
}

std::string rest(std::istringstream& words) {
    std::string text;
    std::getline(words >> std::ws, text);
    return text;
}

PlaceArgs placeOf(std::istringstream& words, std::string& region) {
    const auto lat = number(words);
    const auto lon = number(words);
    region = rest(words);
    return {.lat = lat, .lon = lon, .region = region};
}

/// Reads "Gen 0 0 2; Feb 1": counts of months.
WindDistribution distributionOf(std::istringstream& words) {
    WindDistribution read;
    for (std::string part; std::getline(words, part, ';');) {
        std::istringstream month(part);
        std::string name;
        month >> name;
        for (std::string count; month >> count;) {
            using Limits = std::numeric_limits<std::int64_t>;
            read[name].push_back(count == "max"   ? Limits::max()
                                 : count == "min" ? Limits::min()
                                                  : std::stoll(count));
        }
        read.try_emplace(name);
    }
    return read;
}

std::string counted(const ClassCounts& counts) {
    return fmt::format("{} = {}", fmt::join(counts, " "),
                       std::accumulate(counts.begin(), counts.end(), std::int64_t{0}));
}

std::string answer(const std::string& question) {
    std::istringstream words(question);
    std::string word;
    std::string text;
    words >> word;
    if (word == "factors") {
        return fmt::format(
            "{}", fmt::join(CalculationEngine::getMonthlyFactors(placeOf(words, text)), " "));
    }
    if (word == "wind") {
        const double kwh = *number(words);
        const PlaceArgs place = placeOf(words, text);
        const WindDistribution year = CalculationEngine::calculateMonthlyWindDistribution(
            {.kwh = kwh, .lat = place.lat, .lon = place.lon, .region = place.region});
        std::string found;
        for (const std::string_view month : CalculationEngine::months) {
            found += fmt::format("{}: {}\n", month, counted(year.at(std::string(month))));
        }
        return found;
    }
    if (word == "rose") {
        const double kwh = *number(words);
        const PlaceArgs place = placeOf(words, text);
        const std::size_t comma = text.find(", ");
        std::string found;
        for (const auto& [sector, hours] :
             CalculationEngine::calculateWindRoseData({.cityLabel = text.substr(comma + 2),
             .kwh = kwh,
             .lat = place.lat,
             .lon = place.lon,
             .region = std::string_view(text).substr(0, comma)})) {
            found += fmt::format("{}: {}\n", sector, counted(hours));
        }
        return found;
    }
    if (word == "sky") {
        const SolarData sky = CalculationEngine::calculateOfflineSolarData(placeOf(words, text));
        const auto year = [](const std::vector<double>& days) {
            return std::accumulate(days.begin(), days.end(), 0.0);
        };
        return fmt::format("{} sunny, {} partly, {} overcast, {} wet days: {} {} {} kWh",
                           year(sky.sunny), year(sky.partlyCloudy), year(sky.overcast),
                           year(sky.precip), CalculationEngine::calculateSolarProduction(sky, 1),
                           CalculationEngine::calculateSolarProduction(sky, 2),
                           CalculationEngine::calculateSolarProduction(sky, 3));
    }
    if (word == "production") {
        const int kw = static_cast<int>(*number(words));
        return fmt::format("{}", CalculationEngine::calculateProductionFromDistribution(
                                     distributionOf(words), kw));
    }
    if (word == "format") return CalculationEngine::formatKWh(*number(words));
    if (word == "color") {
        const graphics::Color color = CalculationEngine::getWindColor(*number(words));
        return fmt::format("{:g} {:g} {:g}", color.red * 255, color.green * 255, color.blue * 255);
    }
    if (word == "speed") return fmt::format("{} km/h", meanSpeed(*number(words)));
    if (word == "yield") return fmt::format("{} kWh", yieldFromMeanSpeed(*number(words)));
    throw std::invalid_argument(question);
}

TEST(ModelsTest, AnswerByTheirRules) {
    tests::expectTranscript("engine/transcripts/models.txt", answer);
}

TEST(SolarProductionTest, IsNothingWithoutSkiesAndRoundsHalvesAwayFromZero) {
    EXPECT_EQ(CalculationEngine::calculateSolarProduction(SolarData{}, 3), 0);
    const SolarData half{.sunny = {1.0 / 11}, .partlyCloudy = {}, .overcast = {}, .precip = {9}};
    EXPECT_EQ(CalculationEngine::calculateSolarProduction(half, 1), 1);
}

}  // namespace
}  // namespace kalvo::engine
