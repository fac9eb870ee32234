#include "report/second_page.h"

#include <array>
#include <cmath>

#include "charts/chart_look.h"
#include "charts/speed_histogram.h"
#include "engine/calculation_engine.h"
#include "engine/wind_range.h"
#include "report/page_frame.h"
#include "report/report_text.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

using engine::CalculationEngine;
using engine::WindRange;
using graphics::Canvas;

constexpr double kCaptionLeading = 12;

/// The column of the sky chart; the rose has what is left of it.
constexpr double kSkyLeft = 252;
constexpr double kSkyWidth = kRight - kSkyLeft;
constexpr double kRoseWidth = 190;

/// The wind chart's box, and the months in it, which the table below continues.
constexpr graphics::Rect kWindBox{78.25, 107, 442.5, 236};
constexpr double kMonthPitch = 380.0 / 12;
double centerOfMonth(std::size_t month) {
    return 122 + kMonthPitch * (static_cast<double>(month) + 0.5);
}

void drawHead(Canvas& canvas, const Report& report) {
    constexpr double kBaseline = 57;
    constexpr double kWidestName = 360;
    const graphics::TextStyle name = inBold(bodyStyle());
    drawLeft(canvas, elided(canvas, placeName(report), name, kWidestName), kLeft, kBaseline, name);
    drawRight(canvas, formatDate(report.taken) + ", " + formatTime(report.taken), kRight, kBaseline,
              captionStyle());
    drawHairline(canvas, kLeft, kRight, 64);
}

/// A count of a table: its figure if that fits, else its magnitude.
void drawCount(Canvas& canvas, double count, double end, double y, double width, bool bold) {
    graphics::TextStyle style = inTable(bodyStyle());
    style.bold = bold;
    if (count == 0 && !bold) style.color = palette().zero;
    std::string text = formatFigure(count);
    if (canvas.textWidth(text, style) > width) text = formatMagnitude(count);
    drawRight(canvas, text, end, y, style);
}

void drawClassTable(Canvas& canvas, const Report& report) {
    constexpr double kRule = 339;
    constexpr double kFirstRow = 349;
    constexpr double kStep = 13;
    constexpr double kAfterCenter = 5;  // where the figures of a month end
    constexpr double kGap = 4;          // between a swatch and its class
    constexpr double kYearWidth = 40;
    graphics::TextStyle head{8.75, true, palette().secondary};
    drawRight(canvas, "Anno", kRight, 329.9, head);
    drawHairline(canvas, kLeft, kRight, kRule);
    for (std::size_t windClass = 0; windClass < WindRange::kCount; ++windClass) {
        const double y = kFirstRow + kStep * static_cast<double>(windClass);
        drawSwatch(canvas, {kLeft, y - 7}, WindRange::colors[windClass]);
        drawLeft(canvas, WindRange::labels[windClass], kLeft + kSwatchSize + kGap, y,
                 inTable(bodyStyle()));
        double year = 0;
        for (std::size_t month = 0; month < CalculationEngine::months.size(); ++month) {
            const auto days = static_cast<double>(charts::countsOfMonth(
                report.distribution, CalculationEngine::months[month])[windClass]);
            year += days;
            drawCount(canvas, days, centerOfMonth(month) + kAfterCenter, y, kMonthPitch - kGap,
                      false);
        }
        drawCount(canvas, year, kRight, y, kYearWidth, true);
    }
}

/// Draws a title and the caption under it; returns the baseline after the caption.
double drawTitled(Canvas& canvas,
                  std::string_view title,
                  const std::string& caption,
                  double titleBaseline,
                  const Column& column) {
    constexpr double kToCaption = 14;
    drawLeft(canvas, title, column.x, titleBaseline, titleStyle());
    return drawParagraph(canvas, "", caption, column, titleBaseline + kToCaption, captionStyle());
}

void drawCredits(Canvas& canvas) {
    constexpr double kHead = 752;
    constexpr double kLeading = 11.5;
    graphics::TextStyle head = inBold(noteStyle());
    head.color = palette().text;
    drawLeft(canvas, "Dati e crediti", kLeft, kHead, head);
    drawParagraph(canvas, "",
                  "Comuni: ISTAT, CC\u00a0BY\u00a03.0\u00a0IT. Coordinate: ©\u00a0GeoNames, "
                  "CC\u00a0BY\u00a04.0. Centraline: TMYx di Climate.OneBuilding.Org, da "
                  "NOAA NCEI ISD. Confini: Natural\u00a0Earth. Clima online: meteoblue. "
                  "Nomi dei luoghi online: ©\u00a0i\u00a0contributori di OpenStreetMap, ODbL.",
                  {kLeft, kRight - kLeft, kLeading}, kHead + kLeading, noteStyle());
}

void drawRoseAndSky(Canvas& canvas, const Report& report) {
    constexpr double kTitles = 461;
    constexpr double kRoseSize = 202;
    constexpr double kSkyHeight = 209;
    constexpr double kLegend = 714;
    const double afterRose = drawTitled(canvas, "Rosa dei venti", roseCaption(report), kTitles,
                                        {kLeft, kRoseWidth, kCaptionLeading});
    drawRose(canvas, report,
             {kLeft + (kRoseWidth - kRoseSize) / 2, afterRose - 6, kRoseSize, kRoseSize});
    drawWindLegend(canvas, kLeft, kLegend);

    const double afterSky = drawTitled(canvas, "Cielo mese per mese", skyCaption(report), kTitles,
                                       {kSkyLeft, kSkyWidth, kCaptionLeading});
    drawSkyChart(canvas, report, {kSkyLeft, afterSky - 16, kSkyWidth, kSkyHeight});
    drawSkyLegend(canvas, report, kSkyLeft, kLegend);
}

}  // namespace

void drawSecondPage(Canvas& canvas, const Report& report) {
    constexpr double kWindTitle = 92;
    drawHead(canvas, report);
    drawTitled(canvas, "Vento mese per mese", windCaption(report), kWindTitle,
               {kLeft, kRight - kLeft, kCaptionLeading});
    drawWindChart(canvas, report, kWindBox);
    drawClassTable(canvas, report);
    drawRoseAndSky(canvas, report);
    drawCredits(canvas);
    drawFoot(canvas, 2);
}

}  // namespace kalvo::report
