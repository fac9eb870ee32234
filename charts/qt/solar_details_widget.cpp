#include "charts/qt/solar_details_widget.h"

#include "base/qt/qstring.h"
#include "charts/qt/chart_widget.h"
#include "charts/qt/pv_estimate_panel.h"
#include "charts/qt/titled_section.h"

namespace kalvo::charts {

using ui::FontStyle;

SolarDetailsWidget::SolarDetailsWidget(QWidget* parent)
    : QWidget(parent),
      box_(new PvEstimatePanel),
      chart_(
          new ChartWidget(QStringLiteral("Condizioni Meteo Solari (Giorni Sole/Coperto/Pioggia)"),
                          SolarChartView{})),
      section_(new TitledSection(chart_->accessibleName(), chart_)),
      layout_(new QBoxLayout(QBoxLayout::TopToBottom, this)) {
    layout_->addWidget(box_);
    layout_->addWidget(section_);
}

void SolarDetailsWidget::setView(const DetailsNotebookView& view) {
    box_->setTexts(base::toQString(view.pvDetailsText), base::toQString(view.pvResultText));
    chart_->setChart(SolarChartView{view.currentSolarData});
}

void SolarDetailsWidget::setArrangement(Arrangement arrangement) {
    const bool stacked = arrangement == Arrangement::kStacked;
    layout_->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    layout_->setSpacing(stacked ? 20 : 16);
    const int padding = stacked ? 16 : 8;
    layout_->setContentsMargins(padding, padding, padding, padding);
    layout_->setStretchFactor(box_, stacked ? 0 : 1);
    layout_->setStretchFactor(section_, stacked ? 0 : 1);
    // Side by side the box hugs its texts in the middle of its half.
    layout_->setAlignment(box_, stacked ? Qt::Alignment() : Qt::AlignCenter);
    layout_->setAlignment(section_, stacked ? Qt::Alignment() : Qt::AlignVCenter);
    box_->setArrangement(arrangement);
    section_->setStyle(stacked ? FontStyle::kHeadline : FontStyle::kCaption, 8);
    chart_->setChartHeight(stacked ? 220 : 180);
}

}  // namespace kalvo::charts
