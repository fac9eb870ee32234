#include "charts/qt/wind_details_widget.h"

#include <QStyle>

#include "charts/qt/chart_widget.h"
#include "charts/qt/titled_section.h"
#include "charts/qt/wind_table_widget.h"

namespace kalvo::charts {

namespace {

using ui::FontStyle;

// Narrower, the month labels would touch and the compass letters leave the paper.
constexpr int kChartWidth = 266;
constexpr int kRoseWidth = 151;
constexpr int kPadding = 8;  // side by side
constexpr int kSpacing = 12;

}  // namespace

WindDetailsWidget::WindDetailsWidget(base::Clipboard& clipboard, QWidget* parent)
    : QWidget(parent),
      table_(new WindTableWidget(clipboard)),
      chart_(new ChartWidget(QStringLiteral("Grafico Velocità Mensile"), WindChartView{})),
      rose_(new ChartWidget(QStringLiteral("Rosa dei Venti"), WindRoseChartView{})),
      tableSection_(new TitledSection(QStringLiteral("Distribuzione Vento (Giorni/Mese)"), table_)),
      chartSection_(new TitledSection(chart_->accessibleName(), chart_)),
      roseSection_(new TitledSection(rose_->accessibleName(), rose_)),
      layout_(new QBoxLayout(QBoxLayout::TopToBottom, this)),
      tableWidth_(table_->sizeHint().width()) {
    chart_->setMinimumWidth(kChartWidth);
    rose_->setMinimumWidth(kRoseWidth);
    for (QWidget* section : {tableSection_, chartSection_, roseSection_}) {
        layout_->addWidget(section);
    }
}

void WindDetailsWidget::setView(const DetailsNotebookView& view) {
    table_->setDistribution(view.currentDistribution);
    chart_->setChart(WindChartView{view.currentDistribution});
    rose_->setChart(WindRoseChartView{view.currentRoseData});
}

int WindDetailsWidget::sideBySideWidth() const {
    return tableWidth_ + kChartWidth + kRoseWidth + 2 * kPadding + 2 * kSpacing +
           style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

void WindDetailsWidget::setArrangement(Arrangement arrangement) {
    const bool stacked = arrangement == Arrangement::kStacked;
    layout_->setDirection(stacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    layout_->setSpacing(stacked ? 20 : kSpacing);
    const int padding = stacked ? 16 : kPadding;
    layout_->setContentsMargins(padding, padding, padding, padding);
    for (TitledSection* section : {tableSection_, chartSection_, roseSection_}) {
        layout_->setStretchFactor(section, stacked ? 0 : 1);
        section->setStyle(stacked ? FontStyle::kHeadline : FontStyle::kCaption, stacked ? 6 : 8);
    }
    layout_->setAlignment(tableSection_, stacked ? Qt::Alignment() : Qt::AlignCenter);
    layout_->setAlignment(chartSection_, stacked ? Qt::Alignment() : Qt::AlignVCenter);
    layout_->setAlignment(roseSection_, stacked ? Qt::Alignment() : Qt::AlignVCenter);
    chart_->setChartHeight(stacked ? 200 : 160);
    rose_->setChartHeight(stacked ? 220 : 160);
    tableSection_->setMinimumWidth(stacked ? 0 : tableWidth_);
}

}  // namespace kalvo::charts
