#pragma once

#include "graphics/canvas.h"
#include "report/report.h"

namespace kalvo::report {

/// Draws the page that is the answer and stands alone: place and source, the two productions, the
/// months, and how to read all this.
void drawFirstPage(graphics::Canvas& canvas, const Report& report);

/// The parts of the first page, each at its place.
void drawPlace(graphics::Canvas& canvas, const Report& report);
void drawWindScale(graphics::Canvas& canvas, const Report& report);
void drawProductionCards(graphics::Canvas& canvas, const Report& report);
void drawMonths(graphics::Canvas& canvas, const Report& report);

}  // namespace kalvo::report
