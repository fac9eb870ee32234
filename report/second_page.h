#pragma once

#include "graphics/canvas.h"
#include "report/report.h"

namespace kalvo::report {

/// Draws the page that shows the wind and the sky behind the answer, and whose data they are.
void drawSecondPage(graphics::Canvas& canvas, const Report& report);

/// What the charts say beside their title; each is a sentence or two.
[[nodiscard]] std::string windCaption(const Report& report);
[[nodiscard]] std::string roseCaption(const Report& report);
[[nodiscard]] std::string skyCaption(const Report& report);

/// Draws a chart of the report in a box, as large as in a window at five quarters.
void drawWindChart(graphics::Canvas& canvas, const Report& report, const graphics::Rect& box);
void drawRose(graphics::Canvas& canvas, const Report& report, const graphics::Rect& box);
/// In place of the chart of a sky that nothing is known of, its box says so.
void drawSkyChart(graphics::Canvas& canvas, const Report& report, const graphics::Rect& box);

/// Draws the legend of the rose on two lines, whose first has the baseline `y`.
void drawWindLegend(graphics::Canvas& canvas, double x, double y);
/// Draws that of the sky, with the days of the year; nothing where there is no sky.
void drawSkyLegend(graphics::Canvas& canvas, const Report& report, double x, double y);

}  // namespace kalvo::report
