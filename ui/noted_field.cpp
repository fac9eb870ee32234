#include "ui/noted_field.h"

#include <QPainter>

#include "ui/announcement.h"
#include "ui/control_painter.h"
#include "ui/theme.h"

namespace kalvo::ui {

void NotedField::setNote(const QString& note) {
    if (note == note_) return;
    note_ = note;
    constexpr int kGap = 10;  // points
    const QFontMetrics metrics(ui::font(FontStyle::kCaption));
    setTextMargins(0, 0, note.isEmpty() ? 0 : metrics.horizontalAdvance(note) + kGap, 0);
    setAccessibleDescription(note);
    if (!note.isEmpty()) announce(*this);
}

void NotedField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (note_.isEmpty()) return;
    QPainter painter(this);
    painter.setFont(ui::font(FontStyle::kCaption));
    painter.setPen(Theme::current().orangeText);
    painter.drawText(fieldContents(rect()), Qt::AlignRight | Qt::AlignVCenter, note_);
}

}  // namespace kalvo::ui
