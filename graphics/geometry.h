#pragma once

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

}  // namespace kalvo::graphics
