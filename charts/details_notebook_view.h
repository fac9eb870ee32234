#pragma once

#include <optional>
#include <string>

#include "engine/climate_data.h"

namespace kalvo::charts {

/// How much width there is, in the two classes that matter.
enum class HorizontalSizeClass { kCompact, kRegular };

enum class Arrangement { kStacked, kSideBySide };

/// What the detail panel shows: the wind analysis or the photovoltaic one, of these data sets and
/// texts. Whoever shows it fills in the size class from the room it has.
struct DetailsNotebookView {
    int activeDetailsTab;  // 0 shows the wind view, any other value the photovoltaic view
    engine::WindDistribution currentDistribution;
    engine::WindRoseData currentRoseData;
    engine::SolarData currentSolarData;
    std::string pvDetailsText;  // shown as it stands
    std::string pvResultText;   // shown as it stands, highlighted
    std::optional<HorizontalSizeClass> horizontalSizeClass = std::nullopt;

    [[nodiscard]] bool showsWind() const { return activeDetailsTab == 0; }
    [[nodiscard]] Arrangement arrangement() const {
        return horizontalSizeClass == HorizontalSizeClass::kCompact ? Arrangement::kStacked
                                                                    : Arrangement::kSideBySide;
    }
};

}  // namespace kalvo::charts
