#include "geo/drag_recognizer.h"

#include <algorithm>
#include <cmath>

namespace kalvo::geo {

namespace {

/// The velocity is the distance of this whole time, also when the press is younger: the first
/// movements of a drag, milliseconds apart, say little about its speed.
constexpr std::chrono::milliseconds kVelocityWindow{100};
/// How long a drag would glide on at its velocity: the distance that a motion which slows down
/// exponentially, with this time constant, still covers.
constexpr std::chrono::milliseconds kGlide{250};

}  // namespace

void DragRecognizer::press(graphics::Point point, GlobeView::Time now, Press kind) {
    phase_ = kind == Press::kFirst ? Phase::kPressed : Phase::kPressedAgain;
    start_ = point;
    count_ = 0;
    remember({point, now});
}

std::optional<GlobeDrag> DragRecognizer::move(graphics::Point point, GlobeView::Time now) {
    if (phase_ == Phase::kIdle) return std::nullopt;
    remember({point, now});
    const graphics::Size translation{point.x - start_.x, point.y - start_.y};
    if (phase_ != Phase::kDragging) {
        if (std::hypot(translation.width, translation.height) < kDragThreshold) return std::nullopt;
        phase_ = Phase::kDragging;
    }
    return GlobeDrag{translation, predictedEnd(translation)};
}

bool DragRecognizer::release() {
    const bool isTap = phase_ == Phase::kPressed;
    phase_ = Phase::kIdle;
    return isTap;
}

void DragRecognizer::remember(const Sample& sample) {
    const auto isOld = [&](const Sample& old) { return sample.time - old.time > kVelocityWindow; };
    const auto end = recent_.begin() + static_cast<std::ptrdiff_t>(count_);
    auto kept = std::find_if_not(recent_.begin(), end, isOld);
    if (kept == recent_.begin() && count_ == recent_.size()) ++kept;
    count_ = static_cast<std::size_t>(std::move(kept, end, recent_.begin()) - recent_.begin());
    recent_[count_++] = sample;
}

graphics::Size DragRecognizer::predictedEnd(graphics::Size translation) const {
    const Sample& oldest = recent_.front();
    const Sample& newest = recent_[count_ - 1];
    constexpr double kWindowsToRest =
        static_cast<double>(kGlide.count()) / static_cast<double>(kVelocityWindow.count());
    return {translation.width + (newest.point.x - oldest.point.x) * kWindowsToRest,
            translation.height + (newest.point.y - oldest.point.y) * kWindowsToRest};
}

}  // namespace kalvo::geo
