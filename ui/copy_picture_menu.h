#pragma once

#include <functional>

#include <QContextMenuEvent>
#include <QImage>
#include <QWidget>

namespace kalvo::ui {

/// Opens the context menu of a picture, whose item puts it on the clipboard. `picture` draws it
/// for a display of a scale, at least twice the size in points, so that it stays sharp where it is
/// pasted.
void openCopyPictureMenu(QWidget& widget,
                         const QContextMenuEvent& event,
                         std::function<QImage(double scale)> picture);

}  // namespace kalvo::ui
