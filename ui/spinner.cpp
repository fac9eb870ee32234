#include "ui/spinner.h"

#include <QPainter>
#include <QTimerEvent>

#include "ui/theme.h"

namespace kalvo::ui {

namespace {

constexpr int kSize = 16;   // points
constexpr int kSpokes = 8;  // one full turn
constexpr int kStepMilliseconds = 100;

}  // namespace

Spinner::Spinner(const QString& name, QWidget* parent) : QProgressBar(parent) {
    setAccessibleName(name);
    setRange(0, 0);
    setTextVisible(false);
    setFixedSize(kSize, kSize);
}

QSize Spinner::sizeHint() const { return {kSize, kSize}; }

void Spinner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().center() + QPointF(0.5, 0.5));
    for (int spoke = 0; spoke < kSpokes; ++spoke) {
        const int age = (step_ - spoke + kSpokes) % kSpokes;
        QColor color = Theme::current().secondaryText;
        color.setAlphaF(1.0F - static_cast<float>(age) * 0.11F);
        painter.save();
        painter.rotate(360.0 / kSpokes * spoke);
        painter.setPen(QPen(color, 1.8, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -3.6), QPointF(0, -6.8));
        painter.restore();
    }
}

void Spinner::showEvent(QShowEvent*) { timer_.start(kStepMilliseconds, this); }

void Spinner::hideEvent(QHideEvent*) { timer_.stop(); }

void Spinner::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId()) return QProgressBar::timerEvent(event);
    step_ = (step_ + 1) % kSpokes;
    update();
}

}  // namespace kalvo::ui
