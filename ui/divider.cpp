#include "ui/divider.h"

#include <QPainter>

#include "ui/paint.h"

namespace kalvo::ui {

Divider::Divider(QWidget* parent) : QWidget(parent) {
    setFixedHeight(1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintRule(painter, rect(), Qt::Horizontal);
}

}  // namespace kalvo::ui
