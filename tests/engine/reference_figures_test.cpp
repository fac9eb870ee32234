// Every figure of every place of the catalogue and every turbine size against a program of its own,
// tools/reference-figures, which says what the texts hold.

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

template <class Rows>
std::string text(const Rows& rows) {
    std::string text;
    for (const auto& row : rows) {
        text += fmt::format("{}{}", text.empty() ? "" : "/", fmt::join(row, " "));
    }
    return text;
}

std::string windText(const WindDistribution& distribution) {
    std::vector<ClassCounts> months;
    for (const std::string_view month : CalculationEngine::months) {
        months.push_back(distribution.at(std::string(month)));
    }
    return text(months);
}

std::string roseText(const WindRoseData& rose) {
    std::vector<ClassCounts> sectors;
    for (int sector = 0; sector < 16; ++sector) sectors.push_back(rose.at(sector));
    return text(sectors);
}

/// Adds the figures of a place to the texts.
void addPlace(const Location& place, std::map<std::string, std::string>& texts) {
    const SolarData sky = CalculationEngine::calculateOfflineSolarData(
        {.lat = place.latitude, .lon = place.longitude, .region = place.region});
    texts["sky"] += place.label + ":" +
                    text(std::vector{sky.sunny, sky.partlyCloudy, sky.overcast, sky.precip}) + "\n";
    for (int kw = 1; kw <= 3; ++kw) {
        const double kwh = (kw == 1 ? place.kwh1kw : kw == 2 ? place.kwh2kw : place.kwh3kw).value();
        const std::string line = fmt::format("{} {}:", place.label, kw);
        const WindDistribution wind = CalculationEngine::calculateMonthlyWindDistribution(
            {.kwh = kwh, .lat = place.latitude, .lon = place.longitude, .region = place.region});
        const WindRoseData rose =
            CalculationEngine::calculateWindRoseData({.cityLabel = place.label,
                                                      .kwh = kwh,
                                                      .lat = place.latitude,
                                                      .lon = place.longitude,
                                                      .region = place.region});
        texts["wind"] += line + windText(wind) + "\n";
        texts["rose"] += line + roseText(rose) + "\n";
        texts["energy"] += fmt::format(
            "{}{} {}\n", line, CalculationEngine::calculateProductionFromDistribution(wind, kw),
            CalculationEngine::calculateSolarProduction(sky, kw));
    }
}

TEST(ReferenceFiguresTest, AreThoseOfTheEngine) {
    const base::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    tests::RecordingDiagnostics diagnostics;
    std::map<std::string, std::string> texts;
    for (const Location& place : LocationParser(bundle, diagnostics).loadLocations()) {
        addPlace(place, texts);
    }
    std::ifstream file(KALVO_SOURCE_DIR "/tests/engine/reference_digests.txt");
    std::size_t compared = 0;
    for (std::string name, digest; file >> name >> digest; ++compared) {
        const auto found = QCryptographicHash::hash(QByteArray::fromStdString(texts[name]),
                                                    QCryptographicHash::Sha256);
        EXPECT_EQ(found.toHex().toStdString(), digest) << name;
    }
    EXPECT_EQ(compared, 4U);
}

}  // namespace
}  // namespace kalvo::engine
