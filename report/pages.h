#pragma once

#include "graphics/canvas.h"
#include "report/page_frame.h"
#include "report/report.h"
#include "report/typesetting.h"

namespace kalvo::report {

/// Draws a page of the report, which counts from 1 to `kPageCount`, on a surface of `kPageSize`:
/// the same for a preview, a picture and a file. It leaves the paper as it is.
void drawPage(graphics::Canvas& canvas, const Report& report, int page);

}  // namespace kalvo::report
