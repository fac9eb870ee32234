#include "tools/catalogue/wind_rule.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kalvo::tools {

namespace {

/// The wind of the nearest station that is good for a place, m/s.
double windOfNearest(engine::LatLon place, const std::vector<SourceStation>& stations) {
    constexpr double kExposedReach = 15;  // km
    double wind = 0;
    double nearest = std::numeric_limits<double>::infinity();
    for (const auto& [station, exposure, grade, observed] : stations) {
        const double km = engine::greatCircleKm(place, station.position);
        if (km >= nearest || (station.isExposed && km > kExposedReach)) continue;
        nearest = km;
        wind = station.meanWind;
    }
    return wind;
}

}  // namespace

WindRule::WindRule(const std::vector<SourceStation>& sources) {
    std::vector<engine::Station> stations;
    for (const SourceStation& source : sources) {
        stations.push_back(source.station);
        exposures_.emplace(source.station.code, source.exposure);
    }
    stations_ = engine::Stations(std::move(stations));
}

std::optional<WindRule::Estimate> WindRule::estimate(engine::LatLon place, double exposure) const {
    const std::vector<engine::StationWeight> weights = stations_.weightsAt(place);
    if (weights.empty()) return std::nullopt;
    double meanWind = 0;
    for (const engine::StationWeight& weight : weights) {
        const double difference = exposure - exposures_.find(weight.station->code)->second;
        meanWind += weight.share * (weight.station->meanWind + difference);
    }
    const auto main = std::max_element(
        weights.begin(), weights.end(),
        [](const auto& one, const auto& other) { return one.share < other.share; });
    return Estimate{.meanWind = meanWind, .mainStation = main->station};
}

LeaveOneOutError leaveOneOutError(const std::vector<SourceStation>& stations) {
    LeaveOneOutError error{};
    int count = 0;
    for (std::size_t at = 0; at < stations.size(); ++at) {
        const SourceStation& left = stations[at];
        if (left.station.isExposed) continue;
        std::vector<SourceStation> others = stations;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(at));
        const engine::LatLon place = left.station.position;
        const auto estimate = WindRule(others).estimate(place, left.exposure);
        if (!estimate) continue;
        error.rule += std::abs(estimate->meanWind - left.station.meanWind);
        error.nearestStation += std::abs(windOfNearest(place, others) - left.station.meanWind);
        ++count;
    }
    return {.rule = error.rule / count, .nearestStation = error.nearestStation / count};
}

}  // namespace kalvo::tools
