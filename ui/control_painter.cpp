#include "ui/control_painter.h"

#include <algorithm>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QStyle>

#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::ui {

namespace {

constexpr int kButtonPadding = 12;
constexpr int kSmallButtonHeight = 26;
/// Line height of the text of a button of full height.
constexpr int kFullSizeText = 16;
constexpr int kIconSize = 16;
constexpr int kIconGap = 6;
constexpr int kFieldPadding = 10;
constexpr int kMenuPadding = 8;
constexpr int kMenuTickSpace = 20;
constexpr int kMenuTickLeft = 6;
constexpr double kRowRadius = 5;
constexpr int kMenuItemHeight = 26;
constexpr int kShortcutGap = 28;

struct ButtonColors {
    QColor fill;
    QColor border;
    QColor text;
};

bool isFilled(const QStyleOptionButton& button, const QWidget* widget) {
    return (button.state & QStyle::State_On) ||
           (widget != nullptr && widget->property("prominent").toBool());
}

bool isPressed(const QStyleOption& option) { return option.state & QStyle::State_Sunken; }

bool isHovered(const QStyleOption& option) {
    return (option.state & QStyle::State_Enabled) && (option.state & QStyle::State_MouseOver);
}

ButtonColors buttonColors(const QStyleOptionButton& button, const QWidget* widget) {
    const Theme& theme = Theme::current();
    if (!(button.state & QStyle::State_Enabled)) {
        return {theme.track, Qt::transparent, theme.tertiaryText};
    }
    if (isFilled(button, widget)) {
        const QColor fill = isPressed(button)   ? theme.accentPressed
                            : isHovered(button) ? theme.accentHover
                                                : theme.accent;
        return {fill, theme.accentBorder, Qt::white};
    }
    const QColor fill = isPressed(button)   ? theme.track
                        : isHovered(button) ? theme.buttonHover
                                            : theme.field;
    return {fill, theme.fieldBorder, theme.text};
}

QFont buttonFont(const QWidget* widget, bool filled) {
    QFont font = widget != nullptr ? widget->font() : QApplication::font();
    font.setWeight(filled ? QFont::DemiBold : QFont::Normal);
    return font;
}

/// How a line of text that may have a mnemonic is drawn.
int lineFlags(Qt::Alignment alignment) {
    const bool showsMnemonic = QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut) != 0;
    return static_cast<int>(alignment) | Qt::TextSingleLine |
           (showsMnemonic ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

/// Width of the icon and text of a button, without padding.
int labelWidth(const QStyleOptionButton& button, const QFontMetrics& metrics) {
    const int text = metrics.size(Qt::TextShowMnemonic, button.text).width();
    if (button.icon.isNull()) return text;
    return button.text.isEmpty() ? kIconSize : kIconSize + kIconGap + text;
}

}  // namespace

bool showsFocus(const QStyleOption& option) {
    return (option.state & QStyle::State_HasFocus) &&
           (option.state & QStyle::State_KeyboardFocusChange);
}

QSize buttonSize(const QStyleOptionButton& button, const QWidget* widget) {
    // A toggle keeps its size when it is switched on, which makes its text bolder.
    const QFontMetrics metrics(buttonFont(widget, true));
    const int padding = button.text.isEmpty() ? kButtonPadding - 4 : kButtonPadding;
    const int height = metrics.height() < kFullSizeText ? kSmallButtonHeight : kControlHeight;
    return {labelWidth(button, metrics) + 2 * padding, height + kShadowHeight};
}

void paintButtonBox(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget) {
    const ButtonColors colors = buttonColors(button, widget);
    const QRectF box = button.rect.adjusted(0, 0, 0, -kShadowHeight);
    if (isFilled(button, widget)) {
        // The ring has the color of the fill: a gap keeps them apart.
        const double gap = showsFocus(button) ? 3 : 0;
        paintBox(painter, box.adjusted(gap, gap, -gap, -gap), kCornerRadius - gap, colors.fill,
                 colors.border);
    } else {
        if (!isPressed(button)) paintShadow(painter, box, kCornerRadius);
        paintBox(painter, box, kCornerRadius, colors.fill, colors.border);
    }
    if (showsFocus(button)) paintFocusRing(painter, box, kCornerRadius);
}

void paintButtonLabel(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget) {
    painter.save();
    const QFont font = buttonFont(widget, isFilled(button, widget));
    painter.setFont(font);
    painter.setPen(buttonColors(button, widget).text);
    const QRect box = button.rect.adjusted(0, 0, 0, -kShadowHeight);
    const int width = labelWidth(button, QFontMetrics(font));
    int left = box.x() + std::max(0, (box.width() - width) / 2);
    if (!button.icon.isNull()) {
        button.icon.paint(&painter, left, box.y() + (box.height() - kIconSize) / 2, kIconSize,
                          kIconSize);
        left += kIconSize + kIconGap;
    }
    painter.drawText(QRect(QPoint(left, box.y()), box.bottomRight()),
                     lineFlags(Qt::AlignLeft | Qt::AlignVCenter), button.text);
    painter.restore();
}

QRect fieldContents(const QRect& field) {
    return field.adjusted(kFieldPadding, 0, -kFieldPadding, -kShadowHeight);
}

void paintField(const QStyleOption& option, QPainter& painter) {
    const Theme& theme = Theme::current();
    const QRectF box = option.rect.adjusted(0, 0, 0, -kShadowHeight);
    paintBox(painter, box, kCornerRadius, theme.field, theme.fieldBorder);
    // Whoever types needs to see where, however the field came by the focus.
    if (option.state & QStyle::State_HasFocus) paintFocusRing(painter, box, kCornerRadius);
}

void paintComboBox(const QStyleOptionComboBox& combo, QPainter& painter) {
    const Theme& theme = Theme::current();
    const QRectF box = combo.rect.adjusted(0, 0, 0, -kShadowHeight);
    const bool isOpen = combo.state & QStyle::State_On;
    if (!isOpen) paintShadow(painter, box, kCornerRadius);
    paintBox(painter, box, kCornerRadius, isHovered(combo) ? theme.buttonHover : theme.field,
             theme.fieldBorder);
    painter.save();
    painter.setPen(combo.state & QStyle::State_Enabled ? theme.text : theme.tertiaryText);
    static const QIcon chevrons = symbolIcon(QStringLiteral("chevron.up.chevron.down"));
    chevrons.paint(&painter, combo.rect.right() - kIconSize - 6,
                   combo.rect.y() + (combo.rect.height() - kShadowHeight - kIconSize) / 2,
                   kIconSize, kIconSize);
    painter.restore();
    if (showsFocus(combo)) paintFocusRing(painter, box, kCornerRadius);
}

QRect comboBoxTextSpace(const QRect& combo) {
    return fieldContents(combo).adjusted(0, 0, -kIconSize, 0);
}

void paintComboBoxLabel(const QStyleOptionComboBox& combo, QPainter& painter) {
    const QRect space = comboBoxTextSpace(combo.rect);
    painter.save();
    // Which is the placeholder's color while nothing is chosen.
    painter.setPen(combo.palette.color(QPalette::ButtonText));
    painter.drawText(
        space, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        combo.fontMetrics.elidedText(combo.currentText, Qt::ElideRight, space.width()));
    painter.restore();
}

void paintListSelection(const QStyleOptionViewItem& item, QPainter& painter) {
    if (!(item.state & QStyle::State_Selected)) return;
    paintBox(painter, item.rect.adjusted(0, 1, 0, -1), kRowRadius, Theme::current().accent,
             Theme::current().accentBorder);
}

QRect scrollBarThumb(const QStyleOptionSlider& bar) {
    constexpr int kShortest = 28;
    const bool isVertical = bar.orientation == Qt::Vertical;
    const int length = isVertical ? bar.rect.height() : bar.rect.width();
    const qint64 range = qint64{bar.maximum} - bar.minimum;
    if (range <= 0) return {};
    const auto share = static_cast<int>(length * qint64{bar.pageStep} / (range + bar.pageStep));
    const int thumb = std::clamp(share, std::min(kShortest, length), length);
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - thumb, bar.upsideDown);
    return isVertical ? QRect(bar.rect.x(), bar.rect.y() + start, bar.rect.width(), thumb)
                      : QRect(bar.rect.x() + start, bar.rect.y(), thumb, bar.rect.height());
}

void paintScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) {
    const Theme& theme = Theme::current();
    // A scroll bar covers its rectangle: the paper of the page that it scrolls goes on below it.
    const QWidget* holder = widget != nullptr ? widget->parentWidget() : nullptr;
    const auto* area = holder != nullptr
                           ? qobject_cast<const QAbstractScrollArea*>(holder->parentWidget())
                           : nullptr;
    painter.fillRect(bar.rect, area != nullptr
                                   ? area->palette().color(area->viewport()->backgroundRole())
                                   : bar.palette.color(QPalette::Window));
    const QRect thumb = scrollBarThumb(bar);
    if (thumb.isEmpty()) return;
    const bool isActive = (bar.state & (QStyle::State_MouseOver | QStyle::State_Sunken)) != 0;
    QColor color = theme.text;
    color.setAlphaF(isActive ? 0.45F : 0.25F);
    const QRectF pill = QRectF(thumb).adjusted(3, 3, -3, -3);
    paintBox(painter, pill, std::min(pill.width(), pill.height()) / 2, color);
}

void paintPopup(const QRect& rect, QPainter& painter, const QWidget* widget, double radius) {
    const Theme& theme = Theme::current();
    const bool isRounded =
        widget != nullptr && widget->window()->testAttribute(Qt::WA_TranslucentBackground);
    paintBox(painter, rect, isRounded ? radius : 0, theme.field, theme.fieldBorder);
}

QSize menuItemSize(const QStyleOptionMenuItem& item, const QSize& text) {
    if (item.menuItemType == QStyleOptionMenuItem::Separator) return {text.width(), 9};
    const int gap = item.text.contains(u'\t') ? kShortcutGap : 0;
    const int tick = item.menuHasCheckableItems ? kMenuTickSpace : 0;
    return {text.width() + 2 * kMenuPadding + gap + tick, kMenuItemHeight};
}

void paintMenuItem(const QStyleOptionMenuItem& item, QPainter& painter) {
    const Theme& theme = Theme::current();
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        paintRule(painter,
                  item.rect.adjusted(kMenuPadding, item.rect.height() / 2, -kMenuPadding,
                                     -item.rect.height() / 2),
                  Qt::Horizontal);
        return;
    }
    const bool isEnabled = item.state & QStyle::State_Enabled;
    const bool isSelected = isEnabled && (item.state & QStyle::State_Selected);
    if (isSelected) {
        paintBox(painter, item.rect.adjusted(0, 1, 0, -1), kRowRadius, theme.accent,
                 theme.accentBorder);
    }

    painter.save();
    painter.setFont(item.font);
    painter.setPen(isSelected ? QColor(Qt::white) : isEnabled ? theme.text : theme.tertiaryText);
    if (item.checked) {
        painter.save();
        if (!isSelected) painter.setPen(theme.brandText);
        symbolIcon(QStringLiteral("checkmark"))
            .paint(&painter, item.rect.x() + kMenuTickLeft,
                   item.rect.y() + (item.rect.height() - kIconSize) / 2, kIconSize, kIconSize);
        painter.restore();
    }
    const int left = kMenuPadding + (item.menuHasCheckableItems ? kMenuTickSpace : 0);
    const QRect space = item.rect.adjusted(left, 0, -kMenuPadding, 0);
    const QStringList parts = item.text.split(u'\t');
    painter.drawText(space, lineFlags(Qt::AlignLeft | Qt::AlignVCenter), parts.first());
    if (parts.size() > 1) {
        if (!isSelected) painter.setPen(theme.tertiaryText);
        painter.drawText(space, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, parts[1]);
    }
    painter.restore();
}

void paintMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter) {
    const Theme& theme = Theme::current();
    painter.fillRect(item.rect, theme.sidebar);
    const bool isOpen = (item.state & (QStyle::State_Selected | QStyle::State_Sunken)) != 0;
    if (isOpen) paintBox(painter, item.rect.adjusted(1, 3, -1, -3), 5, theme.track);
    painter.save();
    painter.setPen(item.state & QStyle::State_Enabled ? theme.text : theme.tertiaryText);
    painter.drawText(item.rect, lineFlags(Qt::AlignCenter), item.text);
    painter.restore();
}

}  // namespace kalvo::ui
