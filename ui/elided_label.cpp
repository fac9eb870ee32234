#include "ui/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/tool_tip.h"

namespace kalvo::ui {

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

bool ElidedLabel::isElided() const { return fontMetrics().horizontalAdvance(text()) > width(); }

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QLabel::event(event);
    QStringList lines{note_};
    if (isElided()) lines.prepend(text());
    lines.removeAll(QString());
    QToolTip::showText(dynamic_cast<const QHelpEvent&>(*event).globalPos(),
                       plainToolTip(lines.join(u'\n')), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace kalvo::ui
