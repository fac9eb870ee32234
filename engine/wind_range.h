#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "graphics/color.h"

namespace kalvo::engine {

/// The seven wind-speed classes, in ascending order. The position in these lists is the class
/// index used everywhere else.
struct WindRange {
    static constexpr std::size_t kCount = 7;
    static const std::array<std::string_view, kCount> labels;  // "< 2 km/h" to "40-50 km/h"
    static const std::array<graphics::Color, kCount> colors;
};

}  // namespace kalvo::engine
