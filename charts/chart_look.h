#pragma once

#include <optional>

#include "graphics/canvas.h"

namespace kalvo::charts {

/// How a chart looks where it is shown: on its own rounded paper in a window, or on a printed
/// page, which gray ink must be able to tell.
struct ChartLook {
    bool isPrinted;
    graphics::Color label;          // of all texts but the rings' numbers
    graphics::Color ringLabel;      // of the rose's numbers
    std::optional<double> oneSize;  // points, of every label; else each has its own
    double gridOpacity;             // of the gray lines behind the data, over that on a screen
    double gridWidth;               // points
    std::optional<graphics::Stroke> outline;  // round every filled segment

    static const ChartLook& screen();
    static const ChartLook& paper();

    /// Returns the style of a label that has `screenSize` points on a screen.
    [[nodiscard]] graphics::TextStyle labelStyle(double screenSize, bool bold) const;
    [[nodiscard]] graphics::Stroke gridline(double screenOpacity) const;
    /// Returns the part of a chart on paper that its data may cover: above it stands a caption.
    [[nodiscard]] static graphics::Rect dataArea(graphics::Size chart);
    /// Fills a segment of a bar, on paper only the part of it in the data area, with its outline.
    void fillSegment(graphics::Canvas& canvas,
                     graphics::Size chart,
                     const graphics::Rect& segment,
                     const graphics::Color& color) const;
};

/// Draws diagonals across a segment, by which gray print tells it from its neighbors.
void drawHatching(graphics::Canvas& canvas, const graphics::Rect& rect);

/// Returns what two rectangles have in common; its height and width are 0 where they are disjoint.
/// A negative height hangs from its y.
[[nodiscard]] graphics::Rect intersection(const graphics::Rect& a, const graphics::Rect& b);

}  // namespace kalvo::charts
