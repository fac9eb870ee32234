#pragma once

#include <functional>

#include "platform/canvas.h"

namespace kalvo::charts {

/// Draws what every chart stands on: a white paper whose rounded corners cut the content, and a
/// faint gray border over both. The paper stays white in the dark appearance too, which is why
/// all colours of the charts are fixed.
void drawInChartFrame(platform::Canvas& canvas,
                      platform::Size size,
                      const std::function<void()>& drawContent);

}  // namespace kalvo::charts
