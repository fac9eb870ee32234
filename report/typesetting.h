#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graphics/canvas.h"

/// Measures, colors and type of the printed page, and lines of text set with them. Points, the
/// origin at the top left; the y of a text is its baseline.
namespace kalvo::report {

/// A4, portrait.
inline constexpr graphics::Size kPageSize{595.28, 841.89};

inline constexpr double kLeft = 48;  // the margins are 48 wide
inline constexpr double kRight = 547.28;
inline constexpr double kColumnWidth = 237.64;
inline constexpr double kLeftColumnEnd = kLeft + kColumnWidth;
inline constexpr double kRightColumn = kRight - kColumnWidth;

inline constexpr double kBodySize = 9;
inline constexpr double kSmallSize = 8.5;  // the smallest there is
inline constexpr double kTitleSize = 11;

struct Palette {
    graphics::Color text;
    graphics::Color secondary;
    graphics::Color zero;  // in tables
    graphics::Color hairline;
    graphics::Color wind;
    graphics::Color sun;
    graphics::Color sunText;
};
[[nodiscard]] const Palette& palette();

[[nodiscard]] graphics::TextStyle bodyStyle();     // 9
[[nodiscard]] graphics::TextStyle captionStyle();  // 9, secondary
[[nodiscard]] graphics::TextStyle noteStyle();     // 8.5, secondary
[[nodiscard]] graphics::TextStyle titleStyle();    // 11, semibold
[[nodiscard]] graphics::TextStyle inBold(graphics::TextStyle style);
[[nodiscard]] graphics::TextStyle inTable(graphics::TextStyle style);  // with tabular digits

void drawLeft(graphics::Canvas& canvas,
              std::string_view text,
              double x,
              double y,
              const graphics::TextStyle& style);
void drawRight(graphics::Canvas& canvas,
               std::string_view text,
               double x,
               double y,
               const graphics::TextStyle& style);
void drawCentered(graphics::Canvas& canvas,
                  std::string_view text,
                  double x,
                  double y,
                  const graphics::TextStyle& style);
/// Draws a line of half a point from `left` to `right`.
void drawHairline(graphics::Canvas& canvas, double left, double right, double y);
/// Draws a small square with an outline, as legends have it, whose top left corner is given.
void drawSwatch(graphics::Canvas& canvas, graphics::Point corner, const graphics::Color& color);
inline constexpr double kSwatchSize = 7.5;

/// The outline of filled swatches and bars, by which gray print tells them apart.
[[nodiscard]] graphics::Stroke fillOutline();

/// Returns the text if it is at most `width` wide, else as many of its characters as fit with an
/// ellipsis after them.
[[nodiscard]] std::string elided(const graphics::Canvas& canvas,
                                 std::string_view text,
                                 const graphics::TextStyle& style,
                                 double width);

/// Breaks a text at its spaces (not at no-break ones) into at most `mostLines` lines, of which the
/// last is elided; a word wider than the column is cut.
[[nodiscard]] std::vector<std::string> wrapped(const graphics::Canvas& canvas,
                                               std::string_view text,
                                               const graphics::TextStyle& style,
                                               double width,
                                               std::size_t mostLines);

/// Where a paragraph stands and how far its lines are apart.
struct Column {
    double x;
    double width;
    double leading;
};

/// Draws a paragraph whose first words may be semibold, from the baseline `y` down; returns the
/// baseline after its last line.
double drawParagraph(graphics::Canvas& canvas,
                     std::string_view lead,
                     std::string_view text,
                     const Column& column,
                     double y,
                     const graphics::TextStyle& style);

}  // namespace kalvo::report
