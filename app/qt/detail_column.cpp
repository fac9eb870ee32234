#include "app/qt/detail_column.h"

#include <algorithm>

#include <QEvent>
#include <QVBoxLayout>

#include "ui/divider.h"

namespace kalvo::app {

namespace {

constexpr int kMapPadding = 12;      // points above and below the map picker
constexpr int kAnalysisPadding = 8;  // points around the analysis picker

/// A control with room around it.
QLayout* padded(QWidget* control, const QMargins& padding) {
    auto* box = new QVBoxLayout;
    box->setContentsMargins(padding);
    box->addWidget(control);
    return box;
}

}  // namespace

DetailColumn::DetailColumn(ContentView& state, const Services& services, QWidget* parent)
    : QWidget(parent),
      state_(state),
      map_(new ui::SegmentedControl(
          QStringLiteral("Mappa"),
          {QStringLiteral("Mappa Regioni"), QStringLiteral("Mappa Province"),
           QStringLiteral("Mappa Vento")})),
      area_(new MapArea(state, services.parser)),
      analysis_(new ui::SegmentedControl(QStringLiteral("Analisi Dettagliata"),
                                         {QStringLiteral("Analisi Impianto Eolico"),
                                          QStringLiteral("Analisi Impianto Solare FV")})),
      details_(new charts::DetailsNotebookWidget(services.clipboard)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(padded(map_, {16, kMapPadding, 16, kMapPadding}));
    column->addWidget(area_, 1);
    column->addWidget(new ui::Divider);
    column->addLayout(padded(
        analysis_, {kAnalysisPadding, kAnalysisPadding, kAnalysisPadding, kAnalysisPadding}));
    column->addWidget(details_);

    connect(map_, &ui::SegmentedControl::indexChosen, this, [this](int index) {
        state_.activeTab = index;
        emit edited();
    });
    connect(analysis_, &ui::SegmentedControl::indexChosen, this, [this](int index) {
        state_.activeDetailsTab = index;
        emit edited();
    });
    connect(area_, &MapArea::edited, this, &DetailColumn::edited);
}

void DetailColumn::showState() {
    map_->setIndex(state_.activeTab);
    area_->showState();
    analysis_->setIndex(state_.activeDetailsTab);
    details_->setView({.activeDetailsTab = state_.activeDetailsTab,
                       .currentDistribution = state_.currentDistribution,
                       .currentRoseData = state_.currentRoseData,
                       .currentSolarData = state_.currentSolarData,
                       .pvDetailsText = state_.pvDetailsText,
                       .pvResultText = state_.pvResultText});
}

bool DetailColumn::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) distributeHeight();
    return QWidget::event(event);
}

void DetailColumn::resizeEvent(QResizeEvent* event) {
    distributeHeight();
    QWidget::resizeEvent(event);
}

void DetailColumn::distributeHeight() {
    constexpr int kDivider = 1;
    const int pickers = map_->sizeHint().height() + analysis_->sizeHint().height() +
                        2 * (kMapPadding + kAnalysisPadding);
    const int room = height() - pickers - kDivider;
    details_->setFixedHeight(std::max(0, std::min(details_->heightForWidth(width()), room / 2)));
}

}  // namespace kalvo::app
