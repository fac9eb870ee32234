#include <string>
#include <vector>

#include <fmt/format.h>

#include "engine/calculation_engine.h"
#include "report/first_page.h"
#include "report/report_text.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

using engine::CalculationEngine;
using graphics::Canvas;
using graphics::TextStyle;

/// What one card says; of a single turbine or plant there is one column of figures.
struct Card {
    double left;
    graphics::Color rule;
    graphics::Color headingColor;
    std::string heading;
    std::string choice;   // "3 turbine da 2 kW"
    std::string caption;  // of the expected figure
    std::string oneHead;
    std::string allHead;
    double one;  // gross, kWh per year
    double all;
    bool isSingle;
    std::string note;
};

std::string windCaption(const Report& report) {
    switch (report.windBasis) {
        case WindBasis::kMeteoblue:
            return "con il vento medio di Meteoblue";
        case WindBasis::kFixedYield:
            return "senza dati di vento del luogo";
        case WindBasis::kStations:
            break;
    }
    if (!report.stationWind) return "con il vento medio stimato del luogo";
    return fmt::format("da\u00a0{} a\u00a0{} con l’errore tipico del vento",
                       formatFigure(report.stationWind->lowest),
                       formatFigure(report.stationWind->highest));
}

Card windCard(const Report& report) {
    return {
        .left = kLeft,
        .rule = palette().wind,
        .headingColor = palette().wind,
        .heading = "Eolico",
        .choice = fmt::format("{} da\u00a0{}\u00a0kW", countOfTurbines(report), report.kilowatts),
        .caption = windCaption(report),
        .oneHead = "una turbina",
        .allHead = countOfTurbines(report),
        .one = report.turbineGross,
        .all = report.turbinesGross(),
        .isSingle = report.quantity == 1,
        .note = ""};
}

Card sunCard(const Report& report) {
    std::string note = "Lorda:";
    for (std::size_t size = 0; size < report.plantGross.size(); ++size) {
        note += fmt::format("{} {}\u00a0kWp {}", size == 0 ? "" : " ·", size + 1,
                            formatFigure(report.plantGross[size]));
    }
    return {
        .left = kRightColumn,
        .rule = palette().sun,
        .headingColor = palette().sunText,
        .heading = "Fotovoltaico",
        .choice = fmt::format("{} da\u00a0{}\u00a0kWp", countOfPlants(report), report.kilowatts),
        .caption = report.hasDownloadedSky ? "con il cielo medio di Meteoblue"
                                           : "con il cielo medio della zona",
        .oneHead = "un impianto",
        .allHead = countOfPlants(report),
        .one = report.onePlantGross(),
        .all = report.plantsGross(),
        .isSingle = report.quantity == 1,
        .note = note + "\u00a0kWh/anno"};
}

constexpr double kTop = 314;

void drawHeading(Canvas& canvas, const Card& card) {
    constexpr double kGap = 7;
    TextStyle style = titleStyle();
    style.color = card.headingColor;
    canvas.fillRect({card.left, kTop, kColumnWidth, 2}, card.rule);
    drawLeft(canvas, card.heading, card.left, kTop + 17, style);
    drawLeft(canvas, card.choice, card.left + canvas.textWidth(card.heading, style) + kGap,
             kTop + 17, captionStyle());
}

/// Draws the year's expected production, as large as leaves room for its unit.
void drawAnnualFigure(Canvas& canvas, const Card& card) {
    constexpr double kLargest = 30;
    constexpr double kSmallest = 12;
    constexpr double kGap = 8;
    const std::string figure = formatFigure(card.all * CalculationEngine::correctionCoefficient);
    const TextStyle unit{11, false, palette().secondary};
    const double room = kColumnWidth - kGap - canvas.textWidth("kWh/anno", unit);
    TextStyle style = titleStyle();
    for (style.size = kLargest; style.size > kSmallest && canvas.textWidth(figure, style) > room;) {
        style.size -= 1;
    }
    drawLeft(canvas, figure, card.left, kTop + 48, style);
    drawLeft(canvas, "kWh/anno", card.left + canvas.textWidth(figure, style) + kGap, kTop + 48,
             unit);
    drawLeft(canvas, "Produzione attesa", card.left, kTop + 63, bodyStyle());
    drawLeft(canvas, card.caption, card.left, kTop + 75, captionStyle());
}

void drawFigures(Canvas& canvas, const Card& card) {
    constexpr double kColumnPitch = 64.64;
    constexpr double kWidestHead = 58;
    const double end = card.left + kColumnWidth;
    const double oneEnd = card.isSingle ? end : end - kColumnPitch;

    drawRight(canvas, card.oneHead, oneEnd, kTop + 94, noteStyle());
    if (!card.isSingle) {
        const bool fits = canvas.textWidth(card.allHead, noteStyle()) <= kWidestHead;
        drawRight(canvas, fits ? card.allHead : "in tutto", end, kTop + 94, noteStyle());
    }
    drawHairline(canvas, card.left, end, kTop + 98);

    const auto drawRow = [&](double y, std::string_view label, const std::string& one,
                             const std::string& all, const TextStyle& style) {
        drawLeft(canvas, label, card.left, y, style);
        drawRight(canvas, one, oneEnd, y, inTable(style));
        if (!card.isSingle) drawRight(canvas, all, end, y, inTable(style));
    };
    constexpr double kNet = CalculationEngine::correctionCoefficient;
    drawRow(kTop + 109, "Produzione lorda", formatFigure(card.one), formatFigure(card.all),
            bodyStyle());
    drawRow(kTop + 124, "Coefficiente di correzione", "70%", "70%", bodyStyle());
    drawHairline(canvas, card.left, end, kTop + 128.5);
    drawRow(kTop + 139, "Produzione attesa", formatFigure(card.one * kNet),
            formatFigure(card.all * kNet), inBold(bodyStyle()));
    drawLeft(canvas, elided(canvas, card.note, noteStyle(), kColumnWidth), card.left, kTop + 155,
             noteStyle());
}

}  // namespace

void drawProductionCards(Canvas& canvas, const Report& report) {
    for (const Card& card : {windCard(report), sunCard(report)}) {
        drawHeading(canvas, card);
        drawAnnualFigure(canvas, card);
        drawFigures(canvas, card);
    }
}

}  // namespace kalvo::report
