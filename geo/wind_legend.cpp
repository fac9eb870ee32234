#include "geo/wind_legend.h"

#include <algorithm>
#include <string_view>

#include "engine/calculation_engine.h"
#include "engine/wind_scale.h"

namespace kalvo::geo {

namespace {

using graphics::Canvas;
using graphics::Color;
using graphics::Point;
using graphics::Rect;
using graphics::Size;
using graphics::TextAlignment;

// The light paper's colors, in both appearances.
const Color kText = Color::hex("#17211c");
const Color kSecondaryText = Color::hex("#55625b");
const Color kBorder = Color::hex("#c9d2cd");

constexpr double kTitleLine = 14;      // points
constexpr double kNumbersLine = 15;    // points
constexpr double kFontSize = 11;       // points
constexpr double kBaselineOffset = 4;  // from the middle of a line of that size, points

/// The two sizes of the legend, in points.
struct Layout {
    Rect card;
    double padding;
    bool isNarrow;

    [[nodiscard]] static Layout in(Size viewSize) {
        constexpr double kNarrowView = 400;
        const bool isNarrow = viewSize.width < kNarrowView;
        const Size size = isNarrow ? Size{120, 75} : Size{224, 61};
        const double edge = isNarrow ? 8 : 12;
        return {.card = {edge, viewSize.height - edge - size.height, size.width, size.height},
                .padding = isNarrow ? 8.0 : 12.0,
                .isNarrow = isNarrow};
    }
    [[nodiscard]] double left() const { return card.x + padding; }
    [[nodiscard]] double right() const { return card.x + card.width - padding; }
    [[nodiscard]] double titleTop() const { return card.y + 8; }
    [[nodiscard]] double lastTitleTop() const { return titleTop() + (isNarrow ? kTitleLine : 0); }
    [[nodiscard]] Rect ramp() const { return {left(), lastTitleTop() + 19, right() - left(), 8}; }
    [[nodiscard]] double numbersTop() const { return ramp().y + 10; }
};

/// Writes a line of text in a line box that begins at `top`.
void writeLine(Canvas& canvas,
               std::string_view text,
               Point at,
               double lineHeight,
               TextAlignment alignment,
               bool bold = false) {
    canvas.drawTextLine(text, {at.x, at.y + lineHeight / 2 + kBaselineOffset}, alignment,
                        {kFontSize, bold, bold ? kText : kSecondaryText});
}

void drawTitle(Canvas& canvas, const Layout& layout) {
    const auto write = [&](std::string_view text, double top) {
        writeLine(canvas, text, {layout.left(), top}, kTitleLine, TextAlignment::kLeft, true);
    };
    if (layout.isNarrow) {
        write("Vento medio annuo", layout.titleTop());
        write("a 10 m", layout.lastTitleTop());
    } else {
        write("Vento medio annuo a 10 m", layout.titleTop());
    }
    writeLine(canvas, "km/h", {layout.right(), layout.lastTitleTop()}, kTitleLine,
              TextAlignment::kRight);
}

void drawNumbers(Canvas& canvas, const Layout& layout) {
    const Rect ramp = layout.ramp();
    const auto write = [&](std::string_view text, double share, TextAlignment alignment) {
        writeLine(canvas, text, {ramp.x + share * ramp.width, layout.numbersTop()}, kNumbersLine,
                  alignment);
    };
    write("≤ 8", 0, TextAlignment::kLeft);
    if (!layout.isNarrow) write("11", 0.25, TextAlignment::kCenter);
    write("14", 0.5, TextAlignment::kCenter);
    if (!layout.isNarrow) write("17", 0.75, TextAlignment::kCenter);
    write("≥ 20", 1, TextAlignment::kRight);
}

}  // namespace

Rect windLegendCard(Size viewSize) { return Layout::in(viewSize).card; }

void drawWindLegend(Canvas& canvas, Size viewSize) {
    const Layout layout = Layout::in(viewSize);
    const Rect& card = layout.card;
    canvas.fillRoundedRect(card, 8, graphics::kWhite.withOpacity(0.94));
    canvas.strokeRoundedRect({card.x + 0.5, card.y + 0.5, card.width - 1, card.height - 1}, 7.5,
                             {kBorder, 1});
    drawTitle(canvas, layout);
    drawWindRamp(canvas, layout.ramp());
    drawNumbers(canvas, layout);
}

void drawWindLegendMark(Canvas& canvas, Size viewSize, double kwh) {
    const Rect ramp = Layout::in(viewSize).ramp();
    constexpr double kFromEnd = 4;
    constexpr double kBeyond = 1;
    const double share = (kwh - engine::kReferenceYield) / engine::kYieldSpan;
    const double x =
        std::clamp(ramp.x + share * ramp.width, ramp.x + kFromEnd, ramp.x + ramp.width - kFromEnd);
    // An upright line with round ends is a rounded rectangle, half a width longer either way.
    const auto drawLine = [&](double width, const Color& color) {
        const double reach = kBeyond + width / 2;
        canvas.fillRoundedRect({x - width / 2, ramp.y - reach, width, ramp.height + 2 * reach},
                               width / 2, color);
    };
    drawLine(4.5, graphics::kWhite);
    drawLine(2, kText);
}

void drawWindRamp(Canvas& canvas, const Rect& ramp) {
    constexpr int kSlices = 128;
    const double radius = ramp.height / 2;
    canvas.save();
    canvas.clipRoundedRect(ramp, radius);
    for (int slice = 0; slice < kSlices; ++slice) {
        const double left = ramp.width * slice / kSlices;
        const double kwh = engine::kReferenceYield + engine::kYieldSpan * (slice + 0.5) / kSlices;
        // Each runs to the end, so that no seam shows between two.
        canvas.fillRect({ramp.x + left, ramp.y, ramp.width - left, ramp.height},
                        engine::CalculationEngine::getWindColor(kwh));
    }
    canvas.restore();
    canvas.strokeRoundedRect({ramp.x + 0.5, ramp.y + 0.5, ramp.width - 1, ramp.height - 1},
                             radius - 0.5, {graphics::kBlack.withOpacity(0.16), 1});
}

}  // namespace kalvo::geo
