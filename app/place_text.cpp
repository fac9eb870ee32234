#include "app/place_text.h"

#include <fmt/format.h>

#include "base/numbers.h"
#include "engine/wind_scale.h"

namespace kalvo::app {

namespace {

/// A speed in m/s as km/h with one decimal.
std::string kmhText(double speed) { return base::italianDecimal(speed * engine::kKmhPerMs, 1); }

/// "1965-2023" with the dash that stands between years.
std::string yearsText(std::string years) {
    if (const auto hyphen = years.find('-'); hyphen != std::string::npos) {
        years.replace(hyphen, 1, "–");
    }
    return years;
}

}  // namespace

std::string placeTitle(const engine::Location& place) {
    return place.province.empty() ? place.city : place.city + " (" + place.province + ")";
}

std::string mainStationText(const engine::WindEstimate& estimate) {
    const engine::Station& station = *estimate.mainStation;
    return fmt::format(
        "Centralina principale {}: {}, a {:.0f} km;\nvento medio {} km/h a 10 m ({})", station.code,
        station.name, estimate.mainStationKm, kmhText(station.meanWind), yearsText(station.years));
}

std::string placeWindText(const engine::WindEstimate& estimate) {
    return fmt::format(
        "Vento medio del luogo: {} km/h ± {} a 10 m;\npeso della centralina: {:.0f}%",
        kmhText(estimate.meanWind), kmhText(estimate.typicalError),
        100 * estimate.mainStationShare);
}

}  // namespace kalvo::app
