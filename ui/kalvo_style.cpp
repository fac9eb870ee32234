#include "ui/kalvo_style.h"

#include <cstdlib>

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/compositing.h"
#include "ui/control_painter.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::ui {

namespace {

/// Whether a wheel that turns up and down is over a horizontal scroll bar. It is meant for the
/// page.
bool isWheelAcrossBar(const QObject* object, const QEvent& event) {
    const auto* bar = qobject_cast<const QScrollBar*>(object);
    if (bar == nullptr || bar->orientation() != Qt::Horizontal) return false;
    const QPoint delta = dynamic_cast<const QWheelEvent&>(event).angleDelta();
    return std::abs(delta.y()) > std::abs(delta.x());
}

constexpr double kPopupRadius = 9;  // points
constexpr double kToolTipRadius = 6;

bool isToolTip(const QWidget* widget) {
    return widget->windowType() == Qt::ToolTip && widget->inherits("QTipLabel");
}

/// Whether a widget is the frame round the list of a drop-down menu.
bool isListPopup(const QWidget* widget) {
    return widget != nullptr && widget->windowType() == Qt::Popup &&
           widget->inherits("QComboBoxPrivateContainer");
}

template <class Option>
const Option& as(const QStyleOption* option) {
    return *static_cast<const Option*>(option);
}

}  // namespace

KalvoStyle::KalvoStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void KalvoStyle::polish(QApplication* application) {
    QProxyStyle::polish(application);
    application->installEventFilter(this);
}

void KalvoStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    const auto roundCorners = [widget] {
        if (isDesktopComposited()) widget->setAttribute(Qt::WA_TranslucentBackground);
    };
    if (const auto* menu = qobject_cast<QMenu*>(widget)) {
        // A menu is polished with its window, whose start need not wait for the desktop's answer.
        connect(menu, &QMenu::aboutToShow, menu, roundCorners, Qt::SingleShotConnection);
    } else if (isToolTip(widget)) {
        roundCorners();
    }
}

void KalvoStyle::unpolish(QApplication* application) {
    application->removeEventFilter(this);
    QProxyStyle::unpolish(application);
}

bool KalvoStyle::eventFilter(QObject* object, QEvent* event) {
    const auto isAlt = [event] {
        return dynamic_cast<const QKeyEvent&>(*event).key() == Qt::Key_Alt;
    };
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            if (auto* widget = qobject_cast<QWidget*>(object)) {
                // Qt itself only ever sets it.
                widget->window()->setAttribute(Qt::WA_KeyboardFocusChange, false);
            }
            underlineMnemonics(false);
            break;
        case QEvent::KeyPress:
            if (isAlt()) underlineMnemonics(true);
            break;
        case QEvent::KeyRelease:
            // A menu opened from the keyboard goes on showing its own.
            if (isAlt() && qobject_cast<QMenu*>(QApplication::activePopupWidget()) == nullptr) {
                underlineMnemonics(false);
            }
            break;
        case QEvent::Hide:
            if (qobject_cast<QMenu*>(object) != nullptr) underlineMnemonics(false);
            break;
        case QEvent::ApplicationStateChange:
            underlineMnemonics(false);
            break;
        case QEvent::Wheel:
            if (!isWheelAcrossBar(object, *event)) break;
            event->ignore();
            return true;
        default:
            break;
    }
    return QProxyStyle::eventFilter(object, event);
}

void KalvoStyle::underlineMnemonics(bool shown) {
    if (showsMnemonics_ == shown) return;
    showsMnemonics_ = shown;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->inherits("QLabel") || widget->inherits("QAbstractButton") ||
            widget->inherits("QMenuBar")) {
            widget->update();
        }
    }
}

void KalvoStyle::drawPrimitive(PrimitiveElement element,
                               const QStyleOption* option,
                               QPainter* painter,
                               const QWidget* widget) const {
    const Theme& theme = Theme::current();
    switch (element) {
        case PE_PanelLineEdit:
            paintField(*option, *painter);
            return;
        case PE_PanelButtonCommand:
            paintButtonBox(as<QStyleOptionButton>(option), *painter, widget);
            return;
        case PE_FrameFocusRect:
            // The controls paint their ring themselves; in a list the selection stands for it.
            return;
        case PE_PanelItemViewItem:
            paintListSelection(as<QStyleOptionViewItem>(option), *painter);
            return;
        case PE_PanelMenu:
            paintPopup(option->rect, *painter, widget, kPopupRadius);
            return;
        case PE_FrameMenu:
            return;
        case PE_PanelTipLabel:
            paintPopup(option->rect, *painter, widget, kToolTipRadius);
            return;
        case PE_Frame:
            if (isListPopup(widget)) {
                paintPopup(widget->rect(), *painter, widget, kPopupRadius);
                return;
            }
            paintBox(*painter, option->rect, 0, Qt::transparent, theme.fieldBorder);
            if (showsFocus(*option)) paintFocusRing(*painter, option->rect, kFocusRingWidth);
            return;
        case PE_PanelItemViewRow:
            return;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void KalvoStyle::drawControl(ControlElement element,
                             const QStyleOption* option,
                             QPainter* painter,
                             const QWidget* widget) const {
    switch (element) {
        case CE_PushButtonBevel:
            paintButtonBox(as<QStyleOptionButton>(option), *painter, widget);
            return;
        case CE_PushButtonLabel:
            paintButtonLabel(as<QStyleOptionButton>(option), *painter, widget);
            return;
        case CE_ComboBoxLabel:
            paintComboBoxLabel(as<QStyleOptionComboBox>(option), *painter);
            return;
        case CE_MenuItem:
            paintMenuItem(as<QStyleOptionMenuItem>(option), *painter);
            return;
        case CE_MenuEmptyArea:
            // The menu's box is painted already, with its corners.
            return;
        case CE_MenuBarItem:
            paintMenuBarItem(as<QStyleOptionMenuItem>(option), *painter);
            return;
        case CE_MenuBarEmptyArea:
            painter->fillRect(option->rect, Theme::current().sidebar);
            return;
        case CE_Splitter:
            // The wider column's paper goes on beside a line that is narrower than the handle.
            painter->fillRect(option->rect, Theme::current().window);
            paintRule(*painter, option->rect, Qt::Vertical);
            return;
        default:
            QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void KalvoStyle::drawComplexControl(ComplexControl control,
                                    const QStyleOptionComplex* option,
                                    QPainter* painter,
                                    const QWidget* widget) const {
    switch (control) {
        case CC_ComboBox:
            paintComboBox(as<QStyleOptionComboBox>(option), *painter);
            return;
        case CC_ScrollBar:
            paintScrollBar(as<QStyleOptionSlider>(option), *painter, widget);
            return;
        default:
            QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QSize KalvoStyle::sizeFromContents(ContentsType type,
                                   const QStyleOption* option,
                                   const QSize& contents,
                                   const QWidget* widget) const {
    switch (type) {
        case CT_PushButton:
            return buttonSize(as<QStyleOptionButton>(option), widget);
        case CT_LineEdit:
            return {contents.width() + 20, kControlHeight + kShadowHeight};
        case CT_ComboBox:
            return {contents.width() + 36, kControlHeight + kShadowHeight};
        case CT_MenuItem:
            return menuItemSize(as<QStyleOptionMenuItem>(option), contents);
        case CT_MenuBarItem:
            return {contents.width() + 20, 28};
        case CT_ItemViewItem: {
            const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
            return {size.width(), 26};
        }
        default:
            return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
}

QRect KalvoStyle::subElementRect(SubElement element,
                                 const QStyleOption* option,
                                 const QWidget* widget) const {
    switch (element) {
        case SE_LineEditContents:
            // The field adds two points of its own on either side.
            return option->rect.adjusted(8, 0, -8, -kShadowHeight);
        default:
            return QProxyStyle::subElementRect(element, option, widget);
    }
}

QRect KalvoStyle::subControlRect(ComplexControl control,
                                 const QStyleOptionComplex* option,
                                 SubControl part,
                                 const QWidget* widget) const {
    if (control == CC_ScrollBar) {
        if (part == SC_ScrollBarSlider) return scrollBarThumb(as<QStyleOptionSlider>(option));
        if (part == SC_ScrollBarGroove) return option->rect;
        if (part == SC_ScrollBarAddLine || part == SC_ScrollBarSubLine) return {};
        const QRect thumb = scrollBarThumb(as<QStyleOptionSlider>(option));
        QRect rest = option->rect;
        const bool isVertical = as<QStyleOptionSlider>(option).orientation == Qt::Vertical;
        if (part == SC_ScrollBarSubPage) {
            isVertical ? rest.setBottom(thumb.top() - 1) : rest.setRight(thumb.left() - 1);
            return rest;
        }
        if (part == SC_ScrollBarAddPage) {
            isVertical ? rest.setTop(thumb.bottom() + 1) : rest.setLeft(thumb.right() + 1);
            return rest;
        }
    }
    if (control == CC_ComboBox && part == SC_ComboBoxListBoxPopup) {
        // The list stands 2 points off the field, which ends above its shadow.
        return option->rect.adjusted(0, -3, 0, 2);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int KalvoStyle::pixelMetric(PixelMetric metric,
                            const QStyleOption* option,
                            const QWidget* widget) const {
    switch (metric) {
        case PM_ScrollBarExtent:
            return 11;
        case PM_ScrollView_ScrollBarSpacing:
        case PM_MenuBarPanelWidth:
        case PM_MenuBarVMargin:
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        // Without a panel width menus lose their border.
        case PM_MenuPanelWidth:
        case PM_SplitterWidth:
            return 1;
        // Space for the ring of a page that scrolls with the keyboard.
        case PM_DefaultFrameWidth:
            return qobject_cast<const QScrollArea*>(widget) != nullptr ? 2 : 1;
        case PM_ToolTipLabelFrameWidth:
            return 6;
        case PM_MenuVMargin:
        case PM_MenuHMargin:
            return 4;
        case PM_MenuBarHMargin:
            return 7;
        case PM_MenuBarItemSpacing:
            return 0;
        case PM_FocusFrameHMargin:
            return 9;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int KalvoStyle::styleHint(StyleHint hint,
                          const QStyleOption* option,
                          const QWidget* widget,
                          QStyleHintReturn* returned) const {
    switch (hint) {
        // As a menu, the list would lay out every one of its thousands of entries.
        case SH_ComboBox_Popup:
        case SH_EtchDisabledText:
            return 0;
        case SH_UnderlineShortcut:
            return showsMnemonics_ ? 1 : 0;
        case SH_ComboBox_PopupFrameStyle:
            return QFrame::StyledPanel | QFrame::Plain;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

QIcon KalvoStyle::standardIcon(StandardPixmap icon,
                               const QStyleOption* option,
                               const QWidget* widget) const {
    // A menu bar asks for it even if all its titles fit, as ours always has, and the
    // search in the desktop's icon themes begins with loading plugins.
    if (icon == SP_ToolBarHorizontalExtensionButton) return {};
    return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace kalvo::ui
