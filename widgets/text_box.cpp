#include "widgets/text_box.h"

#include <QPainter>

#include "widgets/paint.h"

namespace kalvo::widgets {

namespace {

constexpr int kPadding = 8;  // points
constexpr double kRadius = 6;

}  // namespace

TextBox::TextBox(const QFont& font, const QColor& ground, QWidget* parent)
    : QLabel(parent), ground_(ground) {
    setTextFormat(Qt::PlainText);
    setFont(font);
    setWordWrap(true);
    setMargin(kPadding);
}

void TextBox::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        paintBox(painter, rect(), kRadius, ground_);
    }
    QLabel::paintEvent(event);
}

}  // namespace kalvo::widgets
