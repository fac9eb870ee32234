#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "base/numbers.h"
#include "engine/calculation_engine.h"
#include "engine/wind_scale.h"
#include "report/first_page.h"
#include "report/report_text.h"
#include "report/typesetting.h"

namespace kalvo::report {

namespace {

using graphics::Canvas;
using graphics::TextStyle;

constexpr double kSecondLine = 22;  // points that a name of two lines takes more

/// Draws the place's name in the largest size that fits one line, else on two; returns how far
/// what stands below moves down.
double drawName(Canvas& canvas, const std::string& name) {
    constexpr double kBaseline = 118;
    constexpr std::array kSizes{26.0, 22.0, 18.0};
    TextStyle style = titleStyle();
    for (const double size : kSizes) {
        style.size = size;
        if (canvas.textWidth(name, style) <= kColumnWidth) {
            drawLeft(canvas, name, kLeft, kBaseline, style);
            return 0;
        }
    }
    double y = kBaseline;
    for (const std::string& line : wrapped(canvas, name, style, kColumnWidth, 2)) {
        drawLeft(canvas, line, kLeft, y, style);
        y += kSecondLine;
    }
    return kSecondLine;
}

/// A value of a fact: what may be elided, and its end, which never is.
struct Value {
    std::string text;
    std::string end;
};

struct Fact {
    std::string label;          // on as many lines as it needs
    std::vector<Value> values;  // each begins a line
};

std::string kilometersPerHour(double metersPerSecond) {
    return base::italianDecimal(metersPerSecond * engine::kKmhPerMs, 1) + "\u00a0km/h";
}

std::vector<Fact> factsOf(const Report& report) {
    if (report.windBasis == WindBasis::kMeteoblue) {
        std::vector<Fact> facts{{"Fonte", {{"Meteoblue Online", ""}}}};
        if (report.downloaded) {
            facts.push_back(
                {"Dati scaricati",
                 {{formatDate(*report.downloaded) + ", " + formatTime(*report.downloaded), ""}}});
        }
        return facts;
    }
    std::vector<Fact> facts{{"Fonte", {{"Stime Centraline", ""}}}};
    if (!report.stationWind) return facts;
    const StationWind& wind = *report.stationWind;
    facts.push_back(
        {"Centralina principale",
         {{wind.station, fmt::format(" ({}), a\u00a0{:.0f}\u00a0km", wind.code, wind.distance)},
          {fmt::format("peso nella stima: {:.0f}%", wind.share * 100), ""}}});
    facts.push_back(
        {"Vento medio",
         {{fmt::format("{} ({}\u00a0m/s) a\u00a010\u00a0m dal suolo", kilometersPerHour(wind.mean),
                       base::italianDecimal(wind.mean, 2)),
           ""},
          {fmt::format("{} a\u00a0{}\u00a0m, altezza del mozzo", kilometersPerHour(wind.hubMean),
                       wind.hubHeight),
           ""}}});
    facts.push_back({"Anni di misura", {{wind.years, ""}}});
    return facts;
}

std::size_t lineCount(const std::vector<Fact>& facts) {
    std::size_t lines = 0;
    for (const Fact& fact : facts) lines += fact.values.size();
    return lines;
}

/// The lines that a value takes, of at most so many; its end stands whole on the last.
std::vector<std::string> linesOf(const Canvas& canvas,
                                 const Value& value,
                                 double width,
                                 std::size_t mostLines) {
    const TextStyle style = bodyStyle();
    const std::string whole = value.text + value.end;
    if (canvas.textWidth(whole, style) <= width) return {whole};
    std::vector<std::string> lines = wrapped(canvas, whole, style, width, mostLines);
    if (value.end.empty() || (lines.size() <= mostLines && !lines.back().ends_with("…"))) {
        return lines;
    }
    const double room = width - canvas.textWidth(value.end, style);
    if (mostLines == 1) return {elided(canvas, value.text, style, room) + value.end};
    return {elided(canvas, value.text, style, width), value.end.substr(1)};
}

void drawFacts(Canvas& canvas, const Report& report, double top) {
    constexpr double kWideStep = 13;
    constexpr double kNarrowStep = 11;  // where the wide one would run into the map's scale
    constexpr double kLastBaseline = 240;
    constexpr double kValues = 124;
    constexpr double kLabelWidth = 72;
    const std::vector<Fact> facts = factsOf(report);
    const auto steps = static_cast<double>(lineCount(facts) - 1);
    const double step = top + kWideStep * steps <= kLastBaseline ? kWideStep : kNarrowStep;
    double spare = kLastBaseline - top - step * steps;
    double y = top;
    for (const Fact& fact : facts) {
        double labelBaseline = y;
        for (const std::string& line :
             wrapped(canvas, fact.label, captionStyle(), kLabelWidth, fact.values.size())) {
            drawLeft(canvas, line, kLeft, labelBaseline, captionStyle());
            labelBaseline += step;
        }
        for (const Value& value : fact.values) {
            const std::vector<std::string> lines =
                linesOf(canvas, value, kLeftColumnEnd - kValues, spare >= step ? 2 : 1);
            for (const std::string& line : lines) {
                drawLeft(canvas, line, kValues, y, bodyStyle());
                y += step;
            }
            spare -= step * static_cast<double>(lines.size() - 1);
        }
    }
}

}  // namespace

void drawPlace(Canvas& canvas, const Report& report) {
    const double down = drawName(canvas, placeName(report));
    TextStyle details = captionStyle();
    details.size = 10;
    drawLeft(canvas, elided(canvas, placeDetails(report), details, kColumnWidth), kLeft, 136 + down,
             details);
    drawFacts(canvas, report, 161 + down);
}

void drawWindScale(Canvas& canvas, const Report& report) {
    constexpr graphics::Rect kBar{kLeft, 279, kColumnWidth, 7};
    constexpr std::array<double, 5> kMarks{8, 11, 14, 17, 20};  // km/h
    constexpr double kLowest = kMarks.front();
    constexpr double kHighest = kMarks.back();
    constexpr int kSteps = 48;  // a quarter of a km/h each
    const auto xOf = [&](double speed) {
        return kBar.x +
               (std::clamp(speed, kLowest, kHighest) - kLowest) / (kHighest - kLowest) * kBar.width;
    };
    drawLeft(canvas, "Mappa: vento del luogo più ventoso di ogni provincia, km/h", kLeft, 256,
             noteStyle());
    for (int step = 0; step < kSteps; ++step) {
        const double speed = kLowest + (kHighest - kLowest) * (step + 0.5) / kSteps;
        const double left = kBar.x + kBar.width * step / kSteps;
        // Each runs to the end, so that no seam shows between two.
        canvas.fillRect({left, kBar.y, kBar.x + kBar.width - left, kBar.height},
                        engine::CalculationEngine::getWindColor(engine::yieldFromMeanSpeed(speed)));
    }
    canvas.strokeRoundedRect(kBar, 0, fillOutline());
    const TextStyle numbers = inTable(noteStyle());
    constexpr double kNumbers = 297.5;
    for (const double mark : kMarks) {
        const std::string text = fmt::format("{:.0f}", mark);
        if (mark == kLowest) {
            drawLeft(canvas, "≤\u00a0" + text, kBar.x, kNumbers, numbers);
        } else if (mark == kHighest) {
            drawRight(canvas, "≥\u00a0" + text, kBar.x + kBar.width, kNumbers, numbers);
        } else {
            drawCentered(canvas, text, xOf(mark), kNumbers, numbers);
        }
    }

    if (!report.stationWind) return;
    constexpr double kPlace = 271;
    constexpr double kWidestName = 110;
    const double speed = report.stationWind->mean * engine::kKmhPerMs;
    const double x = xOf(speed);
    canvas.fillPath({{{{{x - 3, 274}, {x + 3, 274}, {x, 278.5}}, true}}}, palette().text);
    const TextStyle style = inBold(bodyStyle());
    const std::string text =
        elided(canvas, report.city, style, kWidestName) + "\u00a0" + base::italianDecimal(speed, 1);
    const double half = canvas.textWidth(text, style) / 2;
    drawCentered(canvas, text,
                 std::clamp(x, kBar.x + half, std::max(kBar.x + half, kLeftColumnEnd - half)),
                 kPlace, style);
}

}  // namespace kalvo::report
