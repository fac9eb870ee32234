#pragma once

#include <functional>

#include <QWidget>

namespace kalvo::ui {

/// Calls `action` once, as soon as the window's next frame is on its way to the screen; never if
/// the window ends before. For work that no frame need wait for.
void afterNextPaint(QWidget& window, std::function<void()> action);

}  // namespace kalvo::ui
