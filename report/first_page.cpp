#include "report/first_page.h"

#include <array>

#include <fmt/format.h>

#include "base/numbers.h"
#include "report/geography.h"
#include "report/page_frame.h"
#include "report/report_text.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

using graphics::Canvas;

void drawHeader(Canvas& canvas, const Report& report) {
    constexpr double kTop = 48;
    constexpr double kLogoSize = 28;
    constexpr double kTextLeft = 85;
    constexpr double kFirstLine = 59.5;
    constexpr double kSecondLine = 73;
    graphics::TextStyle brand = titleStyle();
    brand.color = palette().wind;
    canvas.drawPicture(report.logo, {kLeft, kTop, kLogoSize, kLogoSize});
    drawLeft(canvas, "Kalvo WIND & SOLAR", kTextLeft, kFirstLine, brand);
    drawLeft(canvas, "Relazione sulla produzione annua stimata", kTextLeft, kSecondLine,
             captionStyle());
    drawRight(canvas, formatDate(report.taken), kRight, kFirstLine, bodyStyle());
    drawRight(canvas, formatTime(report.taken), kRight, kSecondLine, captionStyle());
    drawHairline(canvas, kLeft, kRight, 84);
}

std::string uncertaintyText(const Report& report) {
    switch (report.windBasis) {
        case WindBasis::kMeteoblue:
            return "Il clima viene da un modello, non da misure sul posto: rilievi, case e alberi "
                   "vicini possono cambiare molto il vento. L’errore non è noto.";
        case WindBasis::kFixedYield:
            return "Mancano dati di vento del luogo: il calcolo parte da una resa fissa. L’errore "
                   "non è noto.";
        case WindBasis::kStations:
            break;
    }
    if (!report.stationWind) {
        return "Il vento è stimato dalle centraline più vicine, non misurato sul posto. L’errore "
               "non è noto.";
    }
    return fmt::format(
        "Il vento è stimato dalle {}\u00a0centraline più vicine e dall’esposizione al mare, non "
        "misurato sul posto. L’errore tipico qui, {}\u00a0m/s, dà l’intervallo indicato sopra.",
        report.stationWind->stationCount,
        base::italianDecimal(report.stationWind->typicalError, 2));
}

void drawReadingNotes(Canvas& canvas, const Report& report) {
    constexpr double kTitle = 698;
    constexpr double kFirstLine = 713;
    constexpr double kLeading = 11.25;
    constexpr double kGap = 4;  // between paragraphs
    graphics::TextStyle style = noteStyle();
    style.color = palette().text;
    drawLeft(canvas, "Come si legge", kLeft, kTitle, titleStyle());

    const Column left{kLeft, kColumnWidth, kLeading};
    double y = drawParagraph(
        canvas, "Le cifre.",
        "La produzione lorda è quella di un anno medio: a parità di vento o cielo ogni giorno "
        "rende uguale. Dal vero il fotovoltaico dà meno d’inverno, più d’estate.",
        left, kFirstLine, style);
    drawParagraph(canvas, "Il\u00a070%.",
                  "L’attesa è il 70% della lorda: un margine fisso per ciò che il calcolo non "
                  "vede, come ostacoli e fermate.",
                  left, y + kGap, style);

    const Column right{kRightColumn, kColumnWidth, kLeading};
    y = drawParagraph(canvas, "Quanto è incerta.", uncertaintyText(report), right, kFirstLine,
                      style);
    drawParagraph(canvas, "Non impegna nessuno.",
                  "È una stima indicativa, non un progetto né un’offerta. Prima di decidere "
                  "conviene misurare il vento sul posto.",
                  right, y + kGap, style);
}

}  // namespace

void drawFirstPage(Canvas& canvas, const Report& report) {
    drawHeader(canvas, report);
    drawPlace(canvas, report);
    if (report.isOnTheGlobe) {
        drawGlobe(canvas, report);
    } else if (report.map) {
        drawMap(canvas, report);
        drawWindScale(canvas, report);
    }
    drawProductionCards(canvas, report);
    drawMonths(canvas, report);
    drawReadingNotes(canvas, report);
    drawFoot(canvas, 1);
}

}  // namespace kalvo::report
