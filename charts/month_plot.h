#pragma once

#include <cstddef>
#include <optional>

#include "graphics/canvas.h"

namespace kalvo::charts {

/// The plot area of a chart of twelve months over days, in points: the horizontal edges, and a
/// vertical scale that is fixed at 0 to 31 days whatever the data hold.
struct MonthPlot {
    static constexpr std::size_t kMonths = 12;

    double left;
    double right;
    double baseline;  // y of 0 days
    double height;    // of 31 days

    [[nodiscard]] static MonthPlot of(graphics::Size size);

    [[nodiscard]] double width() const { return right - left; }
    /// How tall so many days are drawn.
    [[nodiscard]] double heightForDays(double days) const { return days / 31 * height; }
    [[nodiscard]] double y(double days) const { return baseline - heightForDays(days); }
    /// The month whose twelfth of the width holds `x`, or nothing beside the plot.
    [[nodiscard]] std::optional<std::size_t> monthAt(double x) const;
};

/// How the horizontal lines of a plot and their labels look.
struct DayAxisStyle {
    graphics::Stroke gridline;
    int firstLine;  // days; the lines below are left out
    graphics::TextStyle label;
    bool alignsLabels;  // by their right ends; else they are centered
};

/// Draws a line and a label for every fifth day from 0 to 30.
void drawDayAxis(graphics::Canvas& canvas, const MonthPlot& plot, const DayAxisStyle& style);

/// The rectangle of a bar's segment that rises by `length` from `bottom`. An end far outside any
/// window is brought nearer: beside 1e300 a rectangle's position and height could no longer say
/// where its other end is.
[[nodiscard]] graphics::Rect barSegment(double left, double width, double bottom, double length);

}  // namespace kalvo::charts
