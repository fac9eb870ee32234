#pragma once

#include <optional>
#include <string>

#include "engine/climate_data.h"

namespace kalvo::charts {

/// How much width there is, in the two classes that matter.
enum class HorizontalSizeClass { kCompact, kRegular };

enum class Arrangement { kStacked, kSideBySide };

/// Side by side too as long as nobody has said how much width there is.
[[nodiscard]] constexpr Arrangement arrangementFor(std::optional<HorizontalSizeClass> sizeClass) {
    return sizeClass == HorizontalSizeClass::kCompact ? Arrangement::kStacked
                                                      : Arrangement::kSideBySide;
}

/// What the detail panel shows: the wind analysis or the photovoltaic one, of these data sets and
/// texts.
struct DetailsNotebookView {
    int activeDetailsTab;  // 0 shows the wind view, any other value the photovoltaic view
    engine::WindDistribution currentDistribution;
    engine::WindRoseData currentRoseData;
    engine::SolarData currentSolarData;
    std::string pvDetailsText;  // shown as it stands
    std::string pvResultText;   // shown as it stands, highlighted

    [[nodiscard]] bool showsWind() const { return activeDetailsTab == 0; }
};

}  // namespace kalvo::charts
