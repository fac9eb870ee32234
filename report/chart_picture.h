#pragma once

#include "graphics/canvas.h"
#include "report/report.h"

namespace kalvo::report {

enum class ChartKind { kWind, kRose, kSky };

/// Returns how large a chart is with its title, place, source and legend, in points.
[[nodiscard]] graphics::Size chartPictureSize(ChartKind kind);

/// Draws a chart with all that it needs to be understood alone, on paper that is white already.
void drawChartPicture(graphics::Canvas& canvas, const Report& report, ChartKind kind);

}  // namespace kalvo::report
