#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/result.h"
#include "engine/lat_lon.h"
#include "engine/location.h"

namespace kalvo::engine {

/// A weather station that the catalogue's figures come from.
struct Station {
    std::string code;  // as in the places' labels: "LICT", or "WMO 16023" where there is none
    std::string name;
    LatLon position;
    double meanWind;    // m/s at 10 m above the ground
    bool isExposed;     // on a cape or another exposed site, good for places near it only
    std::string years;  // of its record: "1965-2023"

    friend bool operator==(const Station&, const Station&) = default;
};

/// What the wind of a place takes from one station.
struct StationWeight {
    const Station* station;
    double km;     // great-circle distance, at least 1
    double share;  // of the sum of all weights, 0 to 1
};

/// The mean wind of a catalogue place and what it rests on.
struct WindEstimate {
    double meanWind;             // m/s at 10 m above the ground
    double typicalError;         // m/s
    const Station* mainStation;  // the one of greatest weight, which the place's label names
    double mainStationKm;        // great-circle distance, at least 1
    double mainStationShare;     // of the sum of all weights, 0 to 1
    std::size_t stationCount;    // how many stations have a weight
};

/// Returns the typical error in m/s of a place's mean wind, from that wind (m/s) and the distance
/// of the nearest general station: the least-squares plane through the absolute errors at the
/// stations left out one at a time, rounded (resources/README.md).
[[nodiscard]] double typicalWindError(double meanWind, double kmToNearest);

/// The weather stations behind the catalogue, and how much each counts at a place.
class Stations {
 public:
    Stations() = default;
    explicit Stations(std::vector<Station> stations) : stations_(std::move(stations)) {}

    /// Reads the table "centraline.csv": code, name, position in degrees, mean wind in m/s, use
    /// (G general, L exposed) and years. Fails on other columns or a faulty field.
    [[nodiscard]] static base::Result<Stations> read(std::string_view table);

    /// Returns the station with this code, or null.
    [[nodiscard]] const Station* find(std::string_view code) const;

    /// Returns the stations that count at a place: the eight nearest general ones, nearest first,
    /// by the inverse of their distance; then the exposed ones nearer than 10 km, by the inverse of
    /// theirs less that of 10 km.
    [[nodiscard]] std::vector<StationWeight> weightsAt(LatLon place) const;

    /// Returns the wind of a catalogue place; nothing for a place without coordinates, 1 kW yield
    /// or a station of this table.
    [[nodiscard]] std::optional<WindEstimate> estimateFor(const Location& place) const;

    [[nodiscard]] auto begin() const { return stations_.begin(); }
    [[nodiscard]] auto end() const { return stations_.end(); }
    [[nodiscard]] std::size_t size() const { return stations_.size(); }

 private:
    std::vector<Station> stations_;
};

}  // namespace kalvo::engine
