#include "ui/divider.h"

#include <QPainter>

#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::ui {

Divider::Divider(QWidget* parent) : QWidget(parent) {
    setFixedHeight(1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(snappedToPixels(painter, rect()), Theme::current().divider);
}

}  // namespace kalvo::ui
