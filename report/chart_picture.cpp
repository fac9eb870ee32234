#include "report/chart_picture.h"

#include <fmt/format.h>

#include "report/report_text.h"
#include "report/second_page.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

constexpr double kMargin = 16;
constexpr double kHeadHeight = 46;    // with the title and the line under it
constexpr double kLegendHeight = 40;  // two lines and the lower margin

std::string_view titleOf(ChartKind kind) {
    switch (kind) {
        case ChartKind::kWind:
            return "Vento mese per mese";
        case ChartKind::kRose:
            return "Rosa dei venti";
        case ChartKind::kSky:
            break;
    }
    return "Cielo mese per mese";
}

/// As large as on the page.
graphics::Size chartSize(ChartKind kind) {
    switch (kind) {
        case ChartKind::kWind:
            return {442.5, 236};
        case ChartKind::kRose:
            return {202, 202};
        case ChartKind::kSky:
            break;
    }
    return {295.28, 209};
}

std::string_view sourceOf(const Report& report, ChartKind kind) {
    const bool isDownloaded = kind == ChartKind::kSky ? report.hasDownloadedSky
                                                      : report.windBasis == WindBasis::kMeteoblue;
    if (isDownloaded) return "Meteoblue Online";
    return kind == ChartKind::kSky ? "cielo medio della zona" : "Stime Centraline";
}

}  // namespace

graphics::Size chartPictureSize(ChartKind kind) {
    const graphics::Size chart = chartSize(kind);
    return {chart.width + 2 * kMargin, kHeadHeight + chart.height + kLegendHeight};
}

void drawChartPicture(graphics::Canvas& canvas, const Report& report, ChartKind kind) {
    constexpr double kTitle = 24;
    constexpr double kSubtitle = 37;
    constexpr double kToLegend = 14;
    const graphics::Size chart = chartSize(kind);
    drawLeft(canvas, titleOf(kind), kMargin, kTitle, titleStyle());
    // The source is told whole, however long the name of the place is.
    const std::string source = fmt::format(" · {}", sourceOf(report, kind));
    const double room = chart.width - canvas.textWidth(source, captionStyle());
    drawLeft(canvas, elided(canvas, placeName(report), captionStyle(), room) + source, kMargin,
             kSubtitle, captionStyle());

    const graphics::Rect box{kMargin, kHeadHeight, chart.width, chart.height};
    const double legend = kHeadHeight + chart.height + kToLegend;
    switch (kind) {
        case ChartKind::kWind:
            drawWindChart(canvas, report, box);
            drawWindLegend(canvas, kMargin, legend);
            break;
        case ChartKind::kRose:
            drawRose(canvas, report, box);
            drawWindLegend(canvas, kMargin, legend);
            break;
        case ChartKind::kSky:
            drawSkyChart(canvas, report, box);
            drawSkyLegend(canvas, report, kMargin, legend);
            break;
    }
}

}  // namespace kalvo::report
