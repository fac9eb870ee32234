#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "charts/italian_text.h"
#include "report/first_page.h"
#include "report/report_text.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

using graphics::Canvas;

constexpr std::size_t kMonths = 12;
constexpr double kWindEnd = 199;  // right end of the column of figures
constexpr double kHeads = 510;
constexpr double kUpperLine = 514;
constexpr double kJanuary = 526;
constexpr double kStep = 12;
constexpr double kLowerLine = 663;
constexpr double kYear = 674.5;

/// kWh of each month.
using Months = std::array<double, kMonths>;

Months monthsOf(const std::optional<engine::MonthlyProduction>& production) {
    Months months{};
    if (!production) return months;
    std::ranges::transform(production->kwh, months.begin(),
                           [](const auto& kwh) { return static_cast<double>(kwh); });
    return months;
}

double baselineOf(std::size_t month) { return kJanuary + kStep * static_cast<double>(month); }

void drawTable(Canvas& canvas, const Report& report) {
    const graphics::TextStyle figures = inTable(bodyStyle());
    drawLeft(canvas, "Mese", kLeft, kHeads, noteStyle());
    drawRight(canvas, "Eolico", kWindEnd, kHeads, noteStyle());
    drawRight(canvas, "Fotovoltaico", kLeftColumnEnd, kHeads, noteStyle());
    drawHairline(canvas, kLeft, kLeftColumnEnd, kUpperLine);
    const auto drawMonth = [&](const std::optional<engine::MonthlyProduction>& production,
                               std::size_t month, double end) {
        const std::string figure =
            production ? formatFigure(static_cast<double>(production->kwh[month])) : "–";
        drawRight(canvas, figure, end, baselineOf(month), figures);
    };
    for (std::size_t month = 0; month < kMonths; ++month) {
        drawLeft(canvas, charts::monthName(month), kLeft, baselineOf(month), bodyStyle());
        drawMonth(report.windMonths, month, kWindEnd);
        drawMonth(report.solarMonths, month, kLeftColumnEnd);
    }
    drawHairline(canvas, kLeft, kLeftColumnEnd, kLowerLine);
    drawLeft(canvas, "Anno", kLeft, kYear, inBold(bodyStyle()));
    drawRight(canvas, formatFigure(report.turbinesGross()), kWindEnd, kYear, inBold(figures));
    drawRight(canvas, formatFigure(report.plantsGross()), kLeftColumnEnd, kYear, inBold(figures));
}

/// One of the two charts of bars, which share a scale.
struct Field {
    double left;
    double width;
    double scale;  // points per kWh
};

std::array<Field, 2> fieldsFor(double mostWind, double mostSun) {
    constexpr double kGap = 24;
    constexpr double kNarrowest = 64;
    constexpr double kRoom = kColumnWidth - kGap;
    // As wide as their longest bars, which have one scale; the narrower one may be held wider.
    double windWidth =
        mostWind + mostSun > 0 ? kRoom * (mostWind / (mostWind + mostSun)) : kRoom / 2;
    windWidth = std::clamp(windWidth, kNarrowest, kRoom - kNarrowest);
    const double sunWidth = kRoom - windWidth;
    double scale = 0;
    if (mostWind > 0) scale = windWidth / mostWind;
    if (mostSun > 0) scale = scale > 0 ? std::min(scale, sunWidth / mostSun) : sunWidth / mostSun;
    return {Field{kRightColumn, windWidth, scale},
            Field{kRightColumn + windWidth + kGap, sunWidth, scale}};
}

/// Draws lines at 1, 2 or 5 times a power of ten, as close as their numbers allow, up to the
/// longest bar.
void drawTicks(Canvas& canvas, const Field& field, double most) {
    constexpr double kGap = 8;  // between two numbers
    constexpr double kFarthest = 50;
    const graphics::TextStyle style = inTable(noteStyle());
    const auto widthOf = [&](double kwh) { return canvas.textWidth(formatFigure(kwh), style); };
    const auto collides = [&](double step) {
        const double last = std::floor(most / step) * step;
        const double widths = last > step ? widthOf(last) : (widthOf(0) + widthOf(step)) / 2;
        return step * field.scale < widths + kGap;
    };
    double step = 0;
    if (field.scale > 0 && std::isfinite(most)) {
        const double power = std::pow(10, std::floor(std::log10(1 / field.scale)));
        static constexpr std::array<double, 3> kFactors{1, 2, 5};
        for (int i = 0; step == 0; ++i) {
            const double candidate =
                power * std::pow(10, i / 3) * kFactors[static_cast<std::size_t>(i % 3)];
            if (candidate > most || !collides(candidate)) step = candidate;
        }
    }
    for (int i = 0; i == 0 || (step > 0 && step * i <= most && i < kFarthest); ++i) {
        const double x = field.left + step * i * field.scale;
        const bool isAxis = i == 0;
        canvas.strokePath({{{{{x, kUpperLine}, {x, kLowerLine}}, false}}},
                          {isAxis ? palette().secondary : palette().hairline, 0.5});
        const std::string text = formatFigure(step * i);
        const double half = canvas.textWidth(text, style) / 2;
        drawCentered(canvas, text, std::clamp(x, field.left + half, kRight - half), kYear, style);
    }
}

void drawBars(Canvas& canvas,
              const Field& field,
              const Months& months,
              const graphics::Color& color) {
    constexpr double kHeight = 7.2;
    constexpr double kAboveBaseline = 6.8;
    for (std::size_t month = 0; month < kMonths; ++month) {
        const double length = std::min(months[month] * field.scale, field.width);
        if (!(length > 0)) continue;
        const graphics::Rect bar{field.left, baselineOf(month) - kAboveBaseline, length, kHeight};
        canvas.fillRect(bar, color);
        canvas.strokeRoundedRect(bar, 0, fillOutline());
    }
}

}  // namespace

void drawMonths(Canvas& canvas, const Report& report) {
    constexpr double kTitle = 494;
    constexpr double kGap = 7;
    constexpr std::string_view kTitleText = "Produzione lorda mese per mese";
    drawLeft(canvas, kTitleText, kLeft, kTitle, titleStyle());
    drawLeft(canvas, "kWh, barre sulla stessa scala",
             kLeft + canvas.textWidth(kTitleText, titleStyle()) + kGap, kTitle, captionStyle());
    drawTable(canvas, report);

    const Months wind = monthsOf(report.windMonths);
    const Months sun = monthsOf(report.solarMonths);
    const double mostWind = std::max(0.0, std::ranges::max(wind));
    const double mostSun = std::max(0.0, std::ranges::max(sun));
    const auto [windField, sunField] = fieldsFor(mostWind, mostSun);
    drawLeft(canvas, "Eolico", windField.left, kHeads, noteStyle());
    drawLeft(canvas, "Fotovoltaico", sunField.left, kHeads, noteStyle());
    drawHairline(canvas, kRightColumn, kRight, kUpperLine);
    drawTicks(canvas, windField, mostWind);
    drawTicks(canvas, sunField, mostSun);
    drawBars(canvas, windField, wind, palette().wind);
    drawBars(canvas, sunField, sun, palette().sun);
}

}  // namespace kalvo::report
