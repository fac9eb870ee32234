#pragma once

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

/// How `KalvoStyle` measures and paints each kind of control.
namespace kalvo::ui {

/// Whether the focus of the control is to be shown: only once the keyboard is in use.
[[nodiscard]] bool showsFocus(const QStyleOption& option);

/// The size of a push button round its icon and text.
[[nodiscard]] QSize buttonSize(const QStyleOptionButton& button, const QWidget* widget);
void paintButtonBox(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget);
void paintButtonLabel(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget);

/// The part of a field that holds its text and what stands beside it.
[[nodiscard]] QRect fieldContents(const QRect& field);
void paintField(const QStyleOption& option, QPainter& painter);
void paintComboBox(const QStyleOptionComboBox& combo, QPainter& painter);
/// The part of a closed drop-down menu that shows its text.
[[nodiscard]] QRect comboBoxTextSpace(const QRect& combo);
void paintComboBoxLabel(const QStyleOptionComboBox& combo, QPainter& painter);
void paintListSelection(const QStyleOptionViewItem& item, QPainter& painter);

/// The thumb's rectangle in a scroll bar, which has nothing else.
[[nodiscard]] QRect scrollBarThumb(const QStyleOptionSlider& bar);
void paintScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget);

/// The box of a menu, a list or a tooltip that lies over the window: rounded where the desktop
/// composes it.
void paintPopup(const QRect& rect, QPainter& painter, const QWidget* widget, double radius);

[[nodiscard]] QSize menuItemSize(const QStyleOptionMenuItem& item, const QSize& text);
void paintMenuItem(const QStyleOptionMenuItem& item, QPainter& painter);
void paintMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter);

}  // namespace kalvo::ui
