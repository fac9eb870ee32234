// Every figure of every place of the catalogue and every turbine size against a program of its own,
// tools/reference-figures, which says what the texts hold.

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <vector>

#include <QCryptographicHash>

#include <fmt/ranges.h>
#include <gtest/gtest.h>

#include "engine/calculation_engine.h"
#include "engine/location_parser.h"
#include "tests/support/recording_diagnostics.h"

namespace kalvo::engine {
namespace {

/// The SHA-256 of the texts added under each name.
class Digests {
 public:
    void add(const std::string& name, const std::string& text) {
        auto& digest = digests_.try_emplace(name, QCryptographicHash::Sha256).first->second;
        digest.addData(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    }
    [[nodiscard]] std::map<std::string, std::string> results() const {
        std::map<std::string, std::string> results;
        for (const auto& [name, digest] : digests_) {
            results[name] = digest.result().toHex().toStdString();
        }
        return results;
    }

 private:
    std::map<std::string, QCryptographicHash> digests_;
};

template <class Rows>
std::string text(const Rows& rows) {
    std::string text;
    for (const auto& row : rows) {
        text += fmt::format("{}{}", text.empty() ? "" : "/", fmt::join(row, " "));
    }
    return text;
}

std::string windText(const WindDistribution& distribution) {
    std::array<ClassCounts, 12> months;
    std::ranges::transform(CalculationEngine::months, months.begin(), [&](std::string_view month) {
        return distribution.at(std::string(month));
    });
    return text(months);
}

std::string roseText(const WindRoseData& rose) {
    std::array<ClassCounts, 16> sectors;
    for (std::size_t sector = 0; sector < sectors.size(); ++sector) {
        sectors[sector] = rose.at(static_cast<int>(sector));
    }
    return text(sectors);
}

void addPlace(const Location& place, Digests& digests) {
    const SolarData sky = CalculationEngine::calculateOfflineSolarData(
        {.lat = place.latitude, .lon = place.longitude, .region = place.region});
    digests.add(
        "sky", place.label + ":" +
                   text(std::vector{sky.sunny, sky.partlyCloudy, sky.overcast, sky.precip}) + "\n");
    for (int kw = 1; kw <= 3; ++kw) {
        const double kwh = (kw == 1 ? place.kwh1kw : kw == 2 ? place.kwh2kw : place.kwh3kw).value();
        const std::string line = fmt::format("{} {}:", place.label, kw);
        const WindDistribution wind = CalculationEngine::calculateMonthlyWindDistribution(
            {.kwh = kwh, .lat = place.latitude, .lon = place.longitude, .region = place.region});
        digests.add("wind", line + windText(wind) + "\n");
        digests.add(
            "rose",
            line +
                roseText(CalculationEngine::calculateWindRoseData({.cityLabel = place.label,
                                                                   .kwh = kwh,
                                                                   .lat = place.latitude,
                                                                   .lon = place.longitude,
                                                                   .region = place.region})) +
                "\n");
        digests.add("energy",
                    fmt::format("{}{} {}\n", line,
                                CalculationEngine::calculateProductionFromDistribution(wind, kw),
                                CalculationEngine::calculateSolarProduction(sky, kw)));
    }
}

TEST(ReferenceFigures, AreThoseOfTheEngine) {
    std::ifstream file(KALVO_SOURCE_DIR "/tests/engine/reference_digests.txt");
    std::map<std::string, std::string> expected;
    for (std::string name, digest; file >> name >> digest;) expected[name] = digest;

    const base::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    tests::RecordingDiagnostics diagnostics;
    Digests digests;
    for (const Location& place : LocationParser(bundle, diagnostics).loadLocations()) {
        addPlace(place, digests);
    }
    EXPECT_EQ(digests.results(), expected);
}

}  // namespace
}  // namespace kalvo::engine
