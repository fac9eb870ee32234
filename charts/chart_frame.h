#pragma once

#include <functional>

#include "charts/chart_look.h"
#include "graphics/canvas.h"

namespace kalvo::charts {

/// Draws what a chart in a window stands on: a white paper whose rounded corners cut the content,
/// and a faint gray border over both. The paper stays white in the dark appearance too, which is
/// why all colors of the charts are fixed. On a printed page there is the content only.
void drawInChartFrame(graphics::Canvas& canvas,
                      graphics::Size size,
                      const ChartLook& look,
                      const std::function<void()>& drawContent);

}  // namespace kalvo::charts
