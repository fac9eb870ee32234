#include "app/report_content.h"

#include <algorithm>
#include <cmath>
#include <ctime>

#include "app/country.h"
#include "base/shown_text.h"
#include "engine/wind_scale.h"

namespace kalvo::app {

namespace {

using engine::CalculationEngine;
using report::Report;
using report::WindBasis;

report::Moment localMoment(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm local{};
    localtime_r(&seconds, &local);
    return {.year = local.tm_year + 1900,
            .month = local.tm_mon + 1,
            .day = local.tm_mday,
            .hour = local.tm_hour,
            .minute = local.tm_min};
}

WindBasis basisOf(DataSource source) {
    switch (source) {
        case DataSource::kMeteoblue:
            return WindBasis::kMeteoblue;
        case DataSource::kFixedYield:
            return WindBasis::kFixedYield;
        case DataSource::kStations:
            break;
    }
    return WindBasis::kStations;
}

/// The expected production, kWh per year, that a mean wind in m/s at 10 m would give.
double expectedProduction(const ShownResult& result, double meanWind) {
    const engine::WindDistribution distribution =
        CalculationEngine::calculateMonthlyWindDistribution(
            {.kwh = engine::yieldAtHub(meanWind, result.turbineKW),
             .lat = result.place.latitude,
             .lon = result.place.longitude,
             .region = result.place.region});
    return CalculationEngine::correctionCoefficient * static_cast<double>(result.quantity) *
           CalculationEngine::calculateProductionFromDistribution(distribution, result.turbineKW);
}

double roundedToHundreds(double value) { return std::round(value / 100) * 100; }

std::string withDash(std::string years) {
    if (const std::size_t hyphen = years.find('-'); hyphen != std::string::npos) {
        years.replace(hyphen, 1, "–");
    }
    return years;
}

report::StationWind stationWindOf(const ShownResult& result, const engine::WindEstimate& estimate) {
    const double hubYield = engine::yieldAtHub(estimate.meanWind, result.turbineKW);
    const double lowestWind = std::max(0.0, estimate.meanWind - estimate.typicalError);
    const double highestWind = estimate.meanWind + estimate.typicalError;
    return report::StationWind{
        .station = estimate.mainStation->name,
        .code = estimate.mainStation->code,
        .distance = estimate.mainStationKm,
        .share = estimate.mainStationShare,
        .years = withDash(estimate.mainStation->years),
        .stationCount = estimate.stationCount,
        .mean = estimate.meanWind,
        .typicalError = estimate.typicalError,
        .hubMean = engine::meanSpeed(hubYield) / engine::kKmhPerMs,
        .hubHeight = static_cast<int>(engine::hubHeight(result.turbineKW)),
        .lowest = roundedToHundreds(expectedProduction(result, lowestWind)),
        .highest = roundedToHundreds(expectedProduction(result, highestWind))};
}

void addProduction(Report& report) {
    const int size = report.kilowatts;
    report.turbineGross =
        CalculationEngine::calculateProductionFromDistribution(report.distribution, size);
    for (int plant = 1; plant <= 3; ++plant) {
        report.plantGross.at(static_cast<std::size_t>(plant - 1)) =
            CalculationEngine::calculateSolarProduction(report.sky, plant);
    }
    report.windMonths = CalculationEngine::calculateMonthlyWindProduction(report.distribution, size,
                                                                          report.quantity);
    report.solarMonths =
        CalculationEngine::calculateMonthlySolarProduction(report.sky, size, report.quantity);
}

}  // namespace

bool showsResult(const ContentView& state) {
    return state.shownResult && !state.showsMessage() && !state.isFetchingOnline;
}

report::Report makeReport(const ContentView& state,
                          const Services& services,
                          std::chrono::system_clock::time_point now) {
    const ShownResult& result = state.shownResult.value();
    const engine::Location& place = result.place;
    const bool isOnlinePlace = state.selectedCountry == kOnlineCountry;
    Report report{};
    report.taken = localMoment(now);
    report.city = base::shownText(place.city);
    report.province = base::shownText(place.province);
    if (!isOnlinePlace) {
        report.region = base::shownText(place.region);
        report.country = countryOfRegion(place.region).name;
    }
    report.latitude = place.latitude;
    report.longitude = place.longitude;
    report.windBasis = basisOf(result.source);
    if (result.downloadTime) report.downloaded = localMoment(*result.downloadTime);
    if (report.windBasis == WindBasis::kStations) {
        const auto estimate = state.windEstimate(place);
        if (estimate) report.stationWind = stationWindOf(result, *estimate);
    }
    report.hasDownloadedSky = result.isSkyDownloaded;
    report.distribution = state.currentDistribution;
    report.rose = state.currentRoseData;
    report.sky = state.currentSolarData;
    report.kilowatts = result.turbineKW;
    report.quantity = result.quantity;
    addProduction(report);

    report.isOnTheGlobe = isOnlinePlace;
    if (isOnlinePlace) {
        report.world = services.parser.loadWorldCountryRings();
    } else if (state.provinceMapData) {
        report.map = {*state.provinceMapData, state.provinceWindMap};
    }
    report.logo = services.bundle.image("logo@3x").value_or(std::filesystem::path());
    return report;
}

}  // namespace kalvo::app
