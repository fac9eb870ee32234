#pragma once

#include <string>

#include "engine/location.h"
#include "engine/stations.h"

/// Italian texts on places, as tooltips and notices show them.
namespace kalvo::app {

/// Writes the place without its station or coordinates: "Trapani (TP)", "Roma (Italy)".
[[nodiscard]] std::string placeTitle(const engine::Location& place);

/// Writes the main station of a place in two lines: "Centralina principale LICT: Trapani Birgi, a
/// 10 km;", "vento medio 15,2 km/h a 10 m (1965–2023)".
[[nodiscard]] std::string mainStationText(const engine::WindEstimate& estimate);

/// Writes the place's own wind with its typical error, and how much rests on the main station, in
/// two lines: "Vento medio del luogo: 14,6 km/h ± 1,4 a 10 m;", "peso della centralina: 50%".
[[nodiscard]] std::string placeWindText(const engine::WindEstimate& estimate);

}  // namespace kalvo::app
