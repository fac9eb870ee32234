#include "ui/copy_picture_menu.h"

#include <algorithm>
#include <utility>

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

namespace kalvo::ui {

void openCopyPictureMenu(QWidget& widget,
                         const QContextMenuEvent& event,
                         std::function<QImage(double scale)> picture) {
    auto* menu = new QMenu(&widget);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Copia immagine"), &widget,
                    [&widget, picture = std::move(picture)] {
                        const double scale = std::max(2.0, widget.devicePixelRatioF());
                        QGuiApplication::clipboard()->setImage(picture(scale));
                    });
    menu->popup(event.globalPos());
}

}  // namespace kalvo::ui
