#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "geo/globe_gestures.h"
#include "graphics/geometry.h"

namespace kalvo::geo {

/// Tells drags from taps: follows one pressed button of the pointer. A drag is recognized once the
/// pointer has moved 10 points away from the press, whatever the desktop's own threshold; a press
/// that ends before is a tap.
class DragRecognizer {
 public:
    /// The second press of a double click cannot become another tap, but it can become a drag.
    enum class Press { kFirst, kRepeated };

    void press(graphics::Point point, GlobeView::Time now, Press kind);

    /// The change of the drag that this movement makes, if it belongs to one.
    [[nodiscard]] std::optional<GlobeDrag> move(graphics::Point point, GlobeView::Time now);

    /// Ends the press; whether it was a tap.
    [[nodiscard]] bool release();

    [[nodiscard]] bool isDragging() const { return phase_ == Phase::kDragging; }

 private:
    enum class Phase { kIdle, kPressed, kPressedAgain, kDragging };
    struct Sample {
        graphics::Point point;
        GlobeView::Time time;
    };

    /// Where the drag would come to rest, from how fast the pointer has moved of late.
    [[nodiscard]] graphics::Size predictedEnd(graphics::Size translation) const;
    void remember(const Sample& sample);

    Phase phase_ = Phase::kIdle;
    graphics::Point start_{};
    std::array<Sample, 128> recent_{};  // oldest first; the window of a fast mouse
    std::size_t count_ = 0;
};

}  // namespace kalvo::geo
