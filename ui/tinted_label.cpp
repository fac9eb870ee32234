#include "ui/tinted_label.h"

#include <QPainter>

#include "ui/paint.h"

namespace kalvo::ui {

namespace {

constexpr int kPadding = 8;  // points
constexpr double kRadius = 6;

}  // namespace

TintedLabel::TintedLabel(const QFont& font, const QColor& ground, QWidget* parent)
    : QLabel(parent), ground_(ground) {
    setTextFormat(Qt::PlainText);
    setFont(font);
    setWordWrap(true);
    setMargin(kPadding);
}

void TintedLabel::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        paintBox(painter, rect(), kRadius, ground_);
    }
    QLabel::paintEvent(event);
}

}  // namespace kalvo::ui
