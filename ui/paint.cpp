#include "ui/paint.h"

#include <algorithm>
#include <cmath>

#include "ui/theme.h"

namespace kalvo::ui {

namespace {

void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
}

/// Brackets a change of pen, brush and antialiasing.
class PainterState {
 public:
    explicit PainterState(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~PainterState() { painter_.restore(); }
    PainterState(const PainterState&) = delete;
    PainterState& operator=(const PainterState&) = delete;

 private:
    QPainter& painter_;
};

}  // namespace

QRectF snappedToPixels(const QPainter& painter, const QRectF& rect) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(rect);
    const QRectF whole(QPointF(std::round(device.left()), std::round(device.top())),
                       QPointF(std::round(device.right()), std::round(device.bottom())));
    return toDevice.inverted().mapRect(whole);
}

double hairlineWidth(const QPainter& painter) {
    const double scale = painter.deviceTransform().m11();
    return std::max(1.0, std::floor(scale)) / scale;
}

void paintRule(QPainter& painter, const QRectF& rect, Qt::Orientation orientation) {
    QRectF rule = snappedToPixels(painter, rect);
    const double line = hairlineWidth(painter);
    orientation == Qt::Horizontal ? rule.setHeight(line) : rule.setWidth(line);
    painter.fillRect(rule, Theme::current().divider);
}

void paintBox(QPainter& painter,
              const QRectF& rect,
              double radius,
              const QColor& fill,
              const QColor& border) {
    const PainterState state(painter);
    const QRectF outer = snappedToPixels(painter, rect);
    if (border.alpha() == 0) {
        fillRounded(painter, outer, radius, fill);
        return;
    }
    const double line = hairlineWidth(painter);
    const double inset = line / 2;
    painter.setPen(QPen(border, line));
    painter.setBrush(fill);
    painter.drawRoundedRect(outer.adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
}

void paintShadow(QPainter& painter, const QRectF& rect, double radius) {
    const PainterState state(painter);
    const QRectF box = snappedToPixels(painter, rect);
    const double line = hairlineWidth(painter);
    const int strength = Theme::current().dark ? 70 : 22;
    fillRounded(painter, box.translated(0, line), radius, QColor(0, 0, 0, strength));
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius) {
    paintFocusRing(painter, rect, radius, Theme::current().brandText);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& brand) {
    const PainterState state(painter);
    constexpr double kInset = kFocusRingWidth / 2;
    painter.setPen(QPen(brand, kFocusRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        snappedToPixels(painter, rect).adjusted(kInset, kInset, -kInset, -kInset), radius - kInset,
        radius - kInset);
}

}  // namespace kalvo::ui
