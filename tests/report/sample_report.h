#pragma once

#include "engine/calculation_engine.h"
#include "report/report.h"

namespace kalvo::report {

/// A report of three turbines of 2 kW and of three plants, with figures that are easy to follow:
/// every month has ten days of class 3 (24 kWh each) and ten sunny days (5.5 kWh a kWp).
inline Report sampleReport() {
    Report report{};
    report.taken = {2026, 11, 23, 10, 6};
    report.city = "Trapani";
    report.province = "TP";
    report.region = "Sicilia";
    report.country = "Italia";
    report.latitude = 38.0176;
    report.longitude = 12.5362;
    report.windBasis = WindBasis::kStations;
    report.stationWind = {.station = "Trapani Birgi",
                          .code = "LICT",
                          .distance = 11.6,
                          .share = 0.5,
                          .years = "1965–2023",
                          .stationCount = 8,
                          .mean = 4.22,
                          .typicalError = 0.38,
                          .hubMean = 4.33,
                          .hubHeight = 12,
                          .lowest = 15200,
                          .highest = 21300};
    for (const std::string_view month : engine::CalculationEngine::months) {
        report.distribution[std::string(month)] = {0, 0, 0, 10, 0, 0, 0};
    }
    report.rose = {{0, {100, 100, 100, 0, 0, 0, 0}}};
    report.sky.sunny.assign(12, 10);
    report.kilowatts = 2;
    report.quantity = 3;
    report.turbineGross = 2880;
    report.plantGross = {660, 1320, 1980};
    report.windMonths = engine::CalculationEngine::calculateMonthlyWindProduction(
        report.distribution, 2, report.quantity);
    report.solarMonths =
        engine::CalculationEngine::calculateMonthlySolarProduction(report.sky, 2, report.quantity);
    return report;
}

}  // namespace kalvo::report
