#pragma once

#include <functional>
#include <variant>

#include <QWidget>

#include "charts/solar_chart_view.h"
#include "charts/wind_chart_view.h"
#include "charts/wind_rose_chart_view.h"

namespace kalvo::charts {

using Chart = std::variant<WindChartView, WindRoseChartView, SolarChartView>;

/// Shows a chart: paints it, tells under the pointer what is there, tells a screen reader what the
/// chart shows, and copies it as a picture from its context menu.
class ChartWidget final : public QWidget {
    Q_OBJECT

 public:
    /// `name` is what the chart is called to those who cannot see it.
    ChartWidget(const QString& name, Chart chart, QWidget* parent = nullptr);

    /// Repaints only when the chart differs from the one shown.
    void setChart(Chart chart);
    /// The height of the chart, in points. The widget is a line width taller, because half of the
    /// border's line lies outside the chart.
    void setChartHeight(int height);

    /// What the tooltip at a position of the widget says; empty where there is none.
    [[nodiscard]] QString textAt(const QPointF& position) const;
    /// What the context menu copies in place of the bare picture: a picture that tells more, for
    /// a display of the given scale, or a null image for the bare one after all.
    std::function<QImage(const Chart& chart, double scale)> makePicture;

    /// The chart as a picture for a display of the given scale.
    [[nodiscard]] QImage picture(double scale) const;

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

 private:
    [[nodiscard]] graphics::Size chartSize() const;
    void paint(QPainter& painter) const;
    void showTip(const QPointF& position);

    Chart chart_;
};

}  // namespace kalvo::charts
