#pragma once

#include "graphics/canvas.h"

namespace kalvo::report {

inline constexpr int kPageCount = 2;

/// Draws the line at the foot of every page; pages count from 1.
void drawFoot(graphics::Canvas& canvas, int page);

}  // namespace kalvo::report
