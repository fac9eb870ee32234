#pragma once

#include <functional>

#include "graphics/canvas.h"

namespace kalvo::charts {

/// Draws what every chart stands on: a white paper whose rounded corners cut the content, and a
/// faint gray border over both. The paper stays white in the dark appearance too, which is why
/// all colors of the charts are fixed.
void drawInChartFrame(graphics::Canvas& canvas,
                      graphics::Size size,
                      const std::function<void()>& drawContent);

}  // namespace kalvo::charts
