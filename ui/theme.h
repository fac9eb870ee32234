#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>

#include "base/bundle.h"

/// The look of the application: colors, fonts and the labels made of them.
namespace kalvo::ui {

/// The named text styles, from the largest to the smallest.
enum class FontStyle { kTitle2, kTitle3, kHeadline, kBody, kSubheadline, kCaption, kCaption2 };

enum class FontWeight { kRegular, kBold };

/// What a text is, and so which color it takes.
enum class TextRole { kPrimary, kSecondary, kTertiary, kBrand, kOrange };

/// The colors of the light or the dark appearance, each also in high contrast. Charts and flat maps
/// keep a light paper of their own in all of them.
struct Theme {
    bool dark;
    QColor window;
    QColor sidebar;
    QColor field;
    QColor fieldBorder;
    QColor buttonHover;  // of a bordered button under the pointer
    QColor divider;
    QColor text;
    QColor secondaryText;
    QColor tertiaryText;
    QColor brandText;
    QColor orangeText;
    QColor accent;
    QColor accentHover;
    QColor accentPressed;
    QColor accentBorder;  // transparent except in high contrast, as the two below
    QColor track;         // of segmented controls
    QColor trackBorder;
    QColor thumb;
    QColor thumbBorder;
    QColor windBox;   // green at 12 % on whatever lies below
    QColor solarBox;  // yellow at 12 %
    QColor warningFill;
    QColor warningBorder;
    QColor boxBorder;   // of the boxes
    QColor tablePaper;  // gray at 5 %

    /// The appearance of this run. It is decided once, when `apply` is called: dark by the
    /// lightness of the desktop's window color, high contrast where its texts have a contrast of
    /// 20:1 or more.
    [[nodiscard]] static const Theme& current();

    /// The two appearances, for the pictures that look the same in both.
    [[nodiscard]] static const Theme& lightAppearance();
    [[nodiscard]] static const Theme& darkAppearance();

    /// Takes the appearance from the desktop, loads the fonts of the bundle and gives the
    /// application its palette, font and style. Called once, before the first widget.
    static void apply(const base::Bundle& bundle);

    [[nodiscard]] QColor color(TextRole role) const;
};

/// Returns the contrast ratio of two opaque colors, 1 to 21 (WCAG 2.1).
[[nodiscard]] double contrastRatio(const QColor& one, const QColor& other);

/// The font of a text style. Bold is the semibold face: at these sizes a heavier one runs together.
[[nodiscard]] QFont font(FontStyle style, FontWeight weight = FontWeight::kRegular);

/// Gives a label the font and the color of a text style.
void setTextStyle(QLabel& label, FontStyle style, FontWeight weight, TextRole role);

/// A plain-text label (never rich text: its text may come from the web) in a style and role.
[[nodiscard]] QLabel* makeLabel(const QString& text,
                                FontStyle style,
                                FontWeight weight = FontWeight::kRegular,
                                TextRole role = TextRole::kPrimary);

}  // namespace kalvo::ui
