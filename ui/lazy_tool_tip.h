#pragma once

#include <functional>

#include <QWidget>

namespace kalvo::ui {

/// Gives a widget a plain-text tooltip that is worked out whenever the pointer asks for it; an
/// empty one does not appear.
void setLazyToolTip(QWidget& widget, std::function<QString()> text);

}  // namespace kalvo::ui
