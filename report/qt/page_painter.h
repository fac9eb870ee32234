#pragma once

#include <QImage>
#include <QPainter>

#include "base/bundle.h"
#include "report/chart_picture.h"
#include "report/report.h"

namespace kalvo::report {

/// Loads the faces that columns of figures are set in, unless that has been done.
void loadTabularFonts(const base::Bundle& bundle);

/// Draws a page, from 1, on paper that is white already, one unit of the painter a point.
void paintPage(QPainter& painter, const Report& report, int page);

/// Returns a page as a picture of so many pixels a point.
[[nodiscard]] QImage pagePicture(const Report& report, int page, double scale);

/// Returns a chart with its title, place, source and legend as a picture of so many
/// pixels a point.
[[nodiscard]] QImage chartPicture(const Report& report, ChartKind kind, double scale);

}  // namespace kalvo::report
