#pragma once

#include <QPainterPath>

#include "graphics/qt/clipping.h"

namespace kalvo::graphics {

/// Appends the outline of a solid line with butt caps and miter joins (beveled beyond ten times
/// the width), to be filled by the non-zero rule. QPainter's own stroker takes twice as long for
/// lines of many short segments, such as borders and coasts.
void appendStroke(const ClippedPolyline& line, double width, QPainterPath& outline);

}  // namespace kalvo::graphics
