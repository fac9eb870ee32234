#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

namespace kalvo::ui {

/// Gives the widgets of a class a role for screen readers, which pass over a widget without one.
/// Called by the class's constructor.
template <class Widget, QAccessible::Role kRole>
void installAccessibleRole() {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(
            [](const QString& className, QObject* object) -> QAccessibleInterface* {
                if (className != QLatin1String(Widget::staticMetaObject.className())) {
                    return nullptr;
                }
                return new QAccessibleWidget(qobject_cast<QWidget*>(object), kRole);
            });
        return true;
    }();
}

}  // namespace kalvo::ui
