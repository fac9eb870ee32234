#include "ui/elided_label.h"

#include <QPainter>

#include "ui/lazy_tool_tip.h"

namespace kalvo::ui {

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setLazyToolTip(*this, [this] {
        QStringList lines{note_};
        if (isElided()) lines.prepend(this->text());
        lines.removeAll(QString());
        return lines.join(u'\n');
    });
}

bool ElidedLabel::isElided() const { return fontMetrics().horizontalAdvance(text()) > width(); }

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace kalvo::ui
