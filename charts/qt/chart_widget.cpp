#include "charts/qt/chart_widget.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "base/qt/qstring.h"
#include "graphics/qt/conversions.h"
#include "graphics/qt/qt_canvas.h"
#include "ui/accessible_role.h"
#include "ui/copy_picture_menu.h"
#include "ui/paint.h"
#include "ui/tool_tip.h"

namespace kalvo::charts {

namespace {

/// Half of the border's line. It lies outside the chart, and it puts the lines of a chart that is
/// a whole number of points tall in the middle of the display's rows.
constexpr double kMargin = 0.5;

constexpr double kFocusRadius = 6;

QString summaryOf(const Chart& chart) {
    return base::toQString(std::visit([](const auto& view) { return view.summary(); }, chart));
}

}  // namespace

ChartWidget::ChartWidget(const QString& name, Chart chart, QWidget* parent)
    : QWidget(parent), chart_(std::move(chart)) {
    ui::installAccessibleRole<ChartWidget, QAccessible::Graphic>();
    setAccessibleName(name);
    setAccessibleDescription(summaryOf(chart_));
    setMouseTracking(true);
    // So that a screen reader comes by, and the picture can be copied from the keyboard.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ChartWidget::setChart(Chart chart) {
    if (chart == chart_) return;
    chart_ = std::move(chart);
    setAccessibleDescription(summaryOf(chart_));
    update();
}

void ChartWidget::setChartHeight(int height) {
    setFixedHeight(height + static_cast<int>(2 * kMargin));
}

graphics::Size ChartWidget::chartSize() const {
    return {width() - 2 * kMargin, height() - 2 * kMargin};
}

void ChartWidget::paint(QPainter& painter) const {
    painter.translate(kMargin, kMargin);
    graphics::QtCanvas canvas(painter, chartSize());
    std::visit([&](const auto& view) { view.draw(canvas, chartSize()); }, chart_);
}

void ChartWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.save();
    paint(painter);
    painter.restore();
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        ui::paintFocusRing(painter, rect(), kFocusRadius);
    }
}

QString ChartWidget::textAt(const QPointF& position) const {
    const graphics::Point point = graphics::toPoint(position - QPointF(kMargin, kMargin));
    return std::visit(
        [&](const auto& view) {
            const auto hit = view.hitTest(point, chartSize());
            return hit ? base::toQString(view.describe(*hit)) : QString();
        },
        chart_);
}

QImage ChartWidget::picture(double scale) const {
    QImage image((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font());
    paint(painter);
    return image;
}

void ChartWidget::showTip(const QPointF& position) {
    QToolTip::showText(mapToGlobal(position).toPoint(), ui::plainToolTip(textAt(position)), this);
}

bool ChartWidget::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        showTip(dynamic_cast<const QHelpEvent&>(*event).pos());
        return true;
    }
    return QWidget::event(event);
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) { showTip(event->position()); }

void ChartWidget::leaveEvent(QEvent* /*event*/) { QToolTip::hideText(); }

void ChartWidget::contextMenuEvent(QContextMenuEvent* event) {
    ui::openCopyPictureMenu(*this, *event, [this](double scale) {
        const QImage made = makePicture ? makePicture(chart_, scale) : QImage();
        return made.isNull() ? picture(scale) : made;
    });
}

}  // namespace kalvo::charts
