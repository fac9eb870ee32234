#pragma once

#include <QString>

#include "app/content_view.h"
#include "app/place_text.h"
#include "base/qt/qstring.h"

namespace kalvo::app {

/// Returns what a tooltip tells of a catalogue place's main station and mean wind; nothing of any
/// other place. The first call reads the table of stations.
[[nodiscard]] inline QString stationText(const ContentView& state, const engine::Location& place) {
    const auto estimate = state.windEstimate(place);
    if (!estimate) return {};
    return base::toQString(mainStationText(*estimate) + '\n' + placeWindText(*estimate));
}

}  // namespace kalvo::app
