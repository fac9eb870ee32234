#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "geo/globe_gestures.h"
#include "graphics/geometry.h"

namespace kalvo::geo {

/// How far the pointer or a finger moves, in points, until it drags: whatever the desktop's own
/// threshold.
inline constexpr double kDragThreshold = 10;

/// Tells drags from taps: follows one pressed button of the pointer. A drag is recognized once the
/// pointer has moved `kDragThreshold` away from the press; a press that ends before is a tap.
class DragRecognizer {
 public:
    /// The second press of a double click cannot become another tap, but it can become a drag.
    enum class Press { kFirst, kRepeated };

    void press(graphics::Point point, GlobeView::Time now, Press kind);

    /// Follows a movement; returns the change of the drag that it makes, if it belongs to one.
    [[nodiscard]] std::optional<GlobeDrag> move(graphics::Point point, GlobeView::Time now);

    /// Ends the press; returns whether it was a tap.
    [[nodiscard]] bool release();

 private:
    enum class Phase { kIdle, kPressed, kPressedAgain, kDragging };
    struct Sample {
        graphics::Point point;
        GlobeView::Time time;
    };

    /// Extrapolates where the drag would come to rest from the velocity of the last 100 ms.
    [[nodiscard]] graphics::Size predictedEnd(graphics::Size translation) const;
    void remember(const Sample& sample);

    Phase phase_ = Phase::kIdle;
    graphics::Point start_{};
    std::array<Sample, 128> recent_{};  // oldest first; the window of a fast mouse
    std::size_t count_ = 0;
};

}  // namespace kalvo::geo
