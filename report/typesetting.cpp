#include "report/typesetting.h"

#include <algorithm>

namespace kalvo::report {

namespace {

using graphics::Canvas;
using graphics::Color;
using graphics::TextAlignment;
using graphics::TextStyle;

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// The first bytes of a UTF-8 text, at most so many, without half a character at the end.
std::string_view head(std::string_view text, std::size_t bytes) {
    if (bytes >= text.size()) return text;
    while (bytes > 0 && isContinuation(text[bytes])) --bytes;
    return text.substr(0, bytes);
}

std::string_view takeWord(std::string_view& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

}  // namespace

const Palette& palette() {
    static const Palette colors{.text = Color::hex("#17211c"),
                                .secondary = Color::hex("#55625b"),
                                .zero = Color::hex("#7b8781"),
                                .hairline = Color::hex("#c9d2cd"),
                                .wind = Color::hex("#0b7a53"),
                                .sun = Color::hex("#e39a12"),
                                .sunText = Color::hex("#b35900")};
    return colors;
}

TextStyle bodyStyle() { return {kBodySize, false, palette().text}; }
TextStyle captionStyle() { return {kBodySize, false, palette().secondary}; }
TextStyle noteStyle() { return {kSmallSize, false, palette().secondary}; }
TextStyle titleStyle() { return {kTitleSize, true, palette().text}; }

TextStyle inBold(TextStyle style) {
    style.bold = true;
    return style;
}

TextStyle inTable(TextStyle style) {
    style.tabular = true;
    return style;
}

void drawLeft(Canvas& canvas, std::string_view text, double x, double y, const TextStyle& style) {
    canvas.drawTextLine(text, {x, y}, TextAlignment::kLeft, style);
}

void drawRight(Canvas& canvas, std::string_view text, double x, double y, const TextStyle& style) {
    canvas.drawTextLine(text, {x, y}, TextAlignment::kRight, style);
}

void drawCentered(
    Canvas& canvas, std::string_view text, double x, double y, const TextStyle& style) {
    canvas.drawTextLine(text, {x, y}, TextAlignment::kCenter, style);
}

void drawHairline(Canvas& canvas, double left, double right, double y) {
    canvas.strokePath({{{{{left, y}, {right, y}}, false}}}, {palette().hairline, 0.5});
}

void drawSwatch(Canvas& canvas, graphics::Point corner, const Color& color) {
    const graphics::Rect square{corner.x, corner.y, kSwatchSize, kSwatchSize};
    canvas.fillRect(square, color);
    canvas.strokeRoundedRect(square, 0, fillOutline());
}

graphics::Stroke fillOutline() { return {palette().secondary, 0.35}; }

std::string elided(const Canvas& canvas,
                   std::string_view text,
                   const TextStyle& style,
                   double width) {
    if (canvas.textWidth(text, style) <= width) return std::string(text);
    const auto shortened = [&](std::size_t bytes) {
        std::string_view kept = head(text, bytes);
        while (kept.ends_with(' ')) kept.remove_suffix(1);
        return std::string(kept) + "…";
    };
    std::size_t fits = 0;
    std::size_t tooLong = text.size() + 1;
    while (tooLong - fits > 1) {
        const std::size_t middle = (fits + tooLong) / 2;
        (canvas.textWidth(shortened(middle), style) <= width ? fits : tooLong) = middle;
    }
    return shortened(fits);
}

std::vector<std::string> wrapped(const Canvas& canvas,
                                 std::string_view text,
                                 const TextStyle& style,
                                 double width,
                                 std::size_t mostLines) {
    std::string_view rest = text;
    std::vector<std::string> lines;
    while (!rest.empty() && lines.size() + 1 < mostLines) {
        std::string line(takeWord(rest));
        while (!rest.empty()) {
            std::string_view after = rest;
            const std::string longer = line + " " + std::string(takeWord(after));
            if (canvas.textWidth(longer, style) > width) break;
            line = longer;
            rest = after;
        }
        lines.push_back(elided(canvas, line, style, width));
    }
    if (!rest.empty() || lines.empty()) lines.push_back(elided(canvas, rest, style, width));
    return lines;
}

double drawParagraph(Canvas& canvas,
                     std::string_view lead,
                     std::string_view text,
                     const Column& column,
                     double y,
                     const TextStyle& style) {
    const TextStyle leadStyle = inBold(style);
    double x = column.x;
    const double end = column.x + column.width;
    const double space = canvas.textWidth(" ", style);
    // A run of words of one style is drawn whole, so that it is found whole.
    const auto set = [&](std::string_view words, const TextStyle& run) {
        std::string line;
        const auto flush = [&] {
            drawLeft(canvas, line, x, y, run);
            x += canvas.textWidth(line, run) + space;
            line.clear();
        };
        while (!words.empty()) {
            const std::string word(takeWord(words));
            const std::string longer = line.empty() ? word : line + " " + word;
            const bool isFirst = line.empty() && x == column.x;
            if (!isFirst && x + canvas.textWidth(longer, run) > end) {
                if (!line.empty()) flush();
                x = column.x;
                y += column.leading;
                line = word;
            } else {
                line = longer;
            }
        }
        if (!line.empty()) flush();
    };
    set(lead, leadStyle);
    set(text, style);
    return y + column.leading;
}

}  // namespace kalvo::report
