#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "engine/location.h"

namespace kalvo::app {

/// Where the figures of a result come from.
enum class DataSource {
    kStations,    // the offline models, fed with the yield of a catalogue place
    kMeteoblue,   // the climate downloaded for a place found online
    kFixedYield,  // the offline models, fed with a yield that says nothing of the place's wind: a
                  // place found online without a download, or a catalogue place without a figure
};

/// What the current data sets and result texts were computed from. The choices of the screen may
/// have moved on since.
struct ShownResult {
    engine::Location place;
    int turbineKW;          // 1, 2 or 3
    std::int64_t quantity;  // turbines, and photovoltaic plants, at least 1
    DataSource source;
    bool isSkyDownloaded;  // false: the offline sky of the place's latitude and region
    std::optional<std::chrono::system_clock::time_point> downloadTime;  // of the climate
};

}  // namespace kalvo::app
