#pragma once

#include <QPainterPath>

#include "platform/qt/clip.h"

namespace kalvo::platform {

/// Appends the outline of a solid line with butt caps and miter joins (beveled beyond ten times
/// the width), to be filled by the non-zero rule. QPainter's own stroker takes twice as long for
/// lines of many short segments, such as borders and coasts.
void appendStrokeOutline(const VisibleRun& line, double width, QPainterPath& outline);

}  // namespace kalvo::platform
