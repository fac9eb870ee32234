#include "ui/theme.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>

#include "base/qt/qstring.h"
#include "graphics/color.h"
#include "graphics/qt/conversions.h"
#include "ui/kalvo_style.h"

namespace kalvo::ui {

namespace {

QColor translucent(const graphics::Color& color, double opacity) {
    return graphics::toQColor(color.withOpacity(opacity));
}

Theme lightTheme() {
    return {
        .dark = false,
        .window = QColor(0xfcfdfc),
        .sidebar = QColor(0xf4f6f5),
        .field = QColor(0xffffff),
        .fieldBorder = QColor(0xc9d2cd),
        .buttonHover = QColor(0xf3f6f4),
        .divider = QColor(0xe3e8e5),
        .text = QColor(0x17211c),
        .secondaryText = QColor(0x55625b),
        .tertiaryText = QColor(0x66726c),
        .brandText = QColor(0x0b7a53),
        .orangeText = QColor(0xa85300),
        .accent = QColor(0x0b7a53),
        .accentHover = QColor(0x096a48),
        .accentPressed = QColor(0x07583c),
        .accentBorder = Qt::transparent,
        .track = QColor(0xe5eae7),
        .trackBorder = Qt::transparent,
        .thumb = QColor(0xffffff),
        .thumbBorder = QColor(0xd3dbd7),
        .windBox = translucent(graphics::kGreen, 0.12),
        .solarBox = translucent(graphics::kYellow, 0.12),
        .warningFill = QColor(0xfbf0e0),
        .warningBorder = QColor(0xeed9bb),
        .boxBorder = Qt::transparent,
        .tablePaper = translucent(graphics::kGray, 0.05),
    };
}

Theme darkTheme() {
    return {
        .dark = true,
        .window = QColor(0x131715),
        .sidebar = QColor(0x191e1c),
        .field = QColor(0x232a27),
        .fieldBorder = QColor(0x3a4540),
        .buttonHover = QColor(0x2b3430),
        .divider = QColor(0x2a322e),
        .text = QColor(0xe9efec),
        .secondaryText = QColor(0xa4b1ab),
        .tertiaryText = QColor(0x8a9791),
        .brandText = QColor(0x4fcb91),
        .orangeText = QColor(0xffb35c),
        .accent = QColor(0x1b855b),
        .accentHover = QColor(0x187d55),
        .accentPressed = QColor(0x146646),
        .accentBorder = Qt::transparent,
        .track = QColor(0x232a27),
        .trackBorder = Qt::transparent,
        .thumb = QColor(0x3c4742),
        .thumbBorder = QColor(0x46534d),
        .windBox = translucent(graphics::kGreen, 0.12),
        .solarBox = translucent(graphics::kYellow, 0.12),
        .warningFill = QColor(0x2c2418),
        .warningBorder = QColor(0x4b3b24),
        .boxBorder = Qt::transparent,
        .tablePaper = translucent(graphics::kGray, 0.05),
    };
}

/// Changes what every appearance in high contrast has in a color of its own.
void setBorders(Theme& theme, const QColor& border) {
    for (QColor* line : {&theme.fieldBorder, &theme.thumbBorder, &theme.trackBorder,
                         &theme.boxBorder, &theme.warningBorder}) {
        *line = border;
    }
}

Theme highContrastLight() {
    Theme theme = lightTheme();
    theme.window = theme.sidebar = theme.field = theme.warningFill = Qt::white;
    theme.text = Qt::black;
    theme.secondaryText = QColor(0x2e3833);
    theme.tertiaryText = QColor(0x47514c);
    setBorders(theme, QColor(0x4a544f));
    theme.divider = QColor(0x7b8781);
    theme.accent = theme.brandText = QColor(0x00563a);
    theme.accentHover = QColor(0x00452e);
    theme.accentPressed = QColor(0x003322);
    theme.orangeText = QColor(0x7a3a00);
    return theme;
}

Theme highContrastDark() {
    Theme theme = darkTheme();
    theme.window = theme.sidebar = theme.field = theme.track = theme.warningFill = Qt::black;
    theme.thumb = theme.buttonHover = QColor(0x2b3430);
    theme.text = Qt::white;
    theme.secondaryText = QColor(0xd5deda);
    theme.tertiaryText = QColor(0xb4bfb9);
    setBorders(theme, QColor(0xa4b1ab));
    theme.divider = QColor(0x7b8781);
    theme.accent = QColor(0x0a5f40);
    theme.accentBorder = theme.brandText = QColor(0x6fe0ab);
    theme.accentHover = QColor(0x0c6f4b);
    theme.accentPressed = QColor(0x084d34);
    theme.orangeText = QColor(0xffc27a);
    return theme;
}

/// The relative luminance of an opaque color, 0 to 1 (WCAG 2.1).
double luminance(const QColor& color) {
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// The appearance that goes with a desktop's palette.
Theme themeFor(const QPalette& desktop) {
    constexpr double kHighContrast = 20;
    const QColor window = desktop.color(QPalette::Window);
    const bool isDark = window.lightness() < 128;
    const bool isHigh = contrastRatio(window, desktop.color(QPalette::WindowText)) >= kHighContrast;
    if (isDark) return isHigh ? highContrastDark() : darkTheme();
    return isHigh ? highContrastLight() : lightTheme();
}

Theme& chosenTheme() {
    static Theme theme = Theme::lightAppearance();
    return theme;
}

QString& family() {
    static QString name = QStringLiteral("sans-serif");
    return name;
}

/// The weights are files of their own, because a variable font of the same name on the system
/// would otherwise lend its faces.
void loadFonts(const base::Bundle& bundle) {
    constexpr std::array kFaces{"KalvoInter-Regular", "KalvoInter-SemiBold"};
    for (const char* face : kFaces) {
        const auto path = bundle.path(std::string("fonts/") + face, "ttf");
        if (!path) continue;
        const int id = QFontDatabase::addApplicationFont(base::toQString(path->string()));
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        if (!families.isEmpty()) family() = families.first();
    }
}

QPalette palette(const Theme& theme) {
    QPalette palette;
    palette.setColor(QPalette::Window, theme.window);
    palette.setColor(QPalette::WindowText, theme.text);
    palette.setColor(QPalette::Base, theme.field);
    palette.setColor(QPalette::AlternateBase, theme.sidebar);
    palette.setColor(QPalette::Text, theme.text);
    palette.setColor(QPalette::PlaceholderText, theme.tertiaryText);
    palette.setColor(QPalette::Button, theme.field);
    palette.setColor(QPalette::ButtonText, theme.text);
    palette.setColor(QPalette::Highlight, theme.accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, theme.field);
    palette.setColor(QPalette::ToolTipText, theme.text);
    palette.setColor(QPalette::Link, theme.brandText);
    palette.setColor(QPalette::LinkVisited, theme.brandText);
    palette.setColor(QPalette::Light, theme.field);
    palette.setColor(QPalette::Midlight, theme.divider);
    palette.setColor(QPalette::Mid, theme.fieldBorder);
    palette.setColor(QPalette::Dark, theme.tertiaryText);
    palette.setColor(QPalette::Shadow, theme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, theme.tertiaryText);
    }
    return palette;
}

int pixelSize(FontStyle style) {
    switch (style) {
        case FontStyle::kTitle2:
            return 20;
        case FontStyle::kTitle3:
            return 17;
        case FontStyle::kHeadline:
            return 14;
        case FontStyle::kBody:
        case FontStyle::kSubheadline:
            return 13;
        case FontStyle::kCaption:
            return 12;
        case FontStyle::kCaption2:
            return 11;
    }
    return 13;
}

QFont::Weight weightOf(FontStyle style, FontWeight weight) {
    const bool isBold = style == FontStyle::kHeadline || weight == FontWeight::kBold;
    return isBold ? QFont::DemiBold : QFont::Normal;
}

}  // namespace

const Theme& Theme::current() { return chosenTheme(); }

const Theme& Theme::lightAppearance() {
    static const Theme theme = lightTheme();
    return theme;
}

const Theme& Theme::darkAppearance() {
    static const Theme theme = darkTheme();
    return theme;
}

void Theme::apply(const base::Bundle& bundle) {
    chosenTheme() = themeFor(QApplication::palette());
    loadFonts(bundle);
    QApplication::setStyle(new KalvoStyle);
    QApplication::setPalette(palette(chosenTheme()));
    QApplication::setFont(font(FontStyle::kBody));
}

QColor Theme::color(TextRole role) const {
    switch (role) {
        case TextRole::kPrimary:
            return text;
        case TextRole::kSecondary:
            return secondaryText;
        case TextRole::kTertiary:
            return tertiaryText;
        case TextRole::kBrand:
            return brandText;
        case TextRole::kOrange:
            return orangeText;
    }
    return text;
}

double contrastRatio(const QColor& one, const QColor& other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QFont font(FontStyle style, FontWeight weight) {
    QFont font(family());
    font.setPixelSize(pixelSize(style));
    font.setWeight(weightOf(style, weight));
    // Hinting would set the letters of a fractional scale unevenly.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void setTextStyle(QLabel& label, FontStyle style, FontWeight weight, TextRole role) {
    label.setFont(font(style, weight));
    QPalette colors = label.palette();
    colors.setColor(QPalette::WindowText, Theme::current().color(role));
    label.setPalette(colors);
}

QLabel* makeLabel(const QString& text, FontStyle style, FontWeight weight, TextRole role) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    setTextStyle(*label, style, weight, role);
    return label;
}

}  // namespace kalvo::ui
