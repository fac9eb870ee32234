#pragma once

#include "graphics/canvas.h"
#include "report/report.h"

namespace kalvo::report {

/// Draws the provinces of the report's map in the colors of their wind, the place marked, in the
/// right column beside the place.
void drawMap(graphics::Canvas& canvas, const Report& report);

/// Draws the globe in the same place, turned to the report's place, which is marked.
void drawGlobe(graphics::Canvas& canvas, const Report& report);

}  // namespace kalvo::report
