#pragma once

#include <algorithm>

/// Plane geometry of drawings, in points: the origin is the top left corner, x grows to the
/// right and y downward.
namespace kalvo::graphics {

struct Point {
    double x;
    double y;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width;
    double height;
    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    double x;
    double y;
    double width;
    double height;
    friend bool operator==(const Rect&, const Rect&) = default;
};

/// Tells whether a point lies in a rectangle, its right and bottom edge left out. A negative
/// height hangs from its y.
[[nodiscard]] constexpr bool contains(const Rect& rect, Point point) {
    const auto [top, bottom] = std::minmax({rect.y, rect.y + rect.height});
    return point.x >= rect.x && point.x < rect.x + rect.width && point.y >= top && point.y < bottom;
}

}  // namespace kalvo::graphics
