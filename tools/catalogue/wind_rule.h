#pragma once

#include <optional>
#include <vector>

#include "engine/stations.h"
#include "tools/catalogue/source_tables.h"

namespace kalvo::tools {

/// The rule by which a place gets its mean wind from the stations round it.
class WindRule {
 public:
    explicit WindRule(const std::vector<SourceStation>& sources);

    struct Estimate {
        double meanWind;                     // m/s at 10 m
        const engine::Station* mainStation;  // the one of greatest weight
    };

    /// The weighted mean of the stations' winds, each corrected by how much more or less exposed
    /// than the station the place is (m/s); nothing where no station counts.
    [[nodiscard]] std::optional<Estimate> estimate(engine::LatLon place, double exposure) const;

 private:
    engine::Stations stations_;
    Exposures exposures_;  // by station code
};

/// How far, in m/s on average, the general stations are missed when each is left out and estimated
/// from all others.
struct LeaveOneOutError {
    double rule;
    double nearestStation;  // taking the nearest station, exposed ones up to 15 km, as it is
};
[[nodiscard]] LeaveOneOutError leaveOneOutError(const std::vector<SourceStation>& stations);

}  // namespace kalvo::tools
