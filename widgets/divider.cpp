#include "widgets/divider.h"

#include <QPainter>

#include "widgets/paint.h"
#include "widgets/theme.h"

namespace kalvo::widgets {

Divider::Divider(QWidget* parent) : QWidget(parent) {
    setFixedHeight(1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(snappedToPixels(painter, rect()), Theme::current().divider);
}

}  // namespace kalvo::widgets
