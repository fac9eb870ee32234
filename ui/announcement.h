#pragma once

#include <QAccessible>
#include <QWidget>

namespace kalvo::ui {

/// Has screen readers tell what a widget shows, because it has changed.
inline void announce(QWidget& widget) {
    QAccessibleEvent alert(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

}  // namespace kalvo::ui
