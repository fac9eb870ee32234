#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

/// The symbols of the interface, line drawings of one color: "checkmark",
/// "chevron.up.chevron.down", "doc.on.doc", "equal.circle", "exclamationmark.triangle",
/// "info.circle", "magnifyingglass", "minus", "plus", "viewfinder", "wind.snow",
/// "xmark.circle.fill". An unknown name draws nothing.
namespace kalvo::ui {

/// A symbol that takes the color of the pen it is painted with, sharp at every size and scale.
[[nodiscard]] QIcon symbolIcon(const QString& name);

/// A symbol as an image of `size` x `size` points for a display of the given scale.
[[nodiscard]] QPixmap symbolPixmap(const QString& name,
                                   int size,
                                   const QColor& color,
                                   double devicePixelRatio);

}  // namespace kalvo::ui
