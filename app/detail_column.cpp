#include "app/detail_column.h"

#include <QVBoxLayout>

#include "widgets/divider.h"

namespace kalvo::app {

namespace {

/// A control with room around it.
QLayout* padded(QWidget* control, const QMargins& padding) {
    auto* box = new QVBoxLayout;
    box->setContentsMargins(padding);
    box->addWidget(control);
    return box;
}

}  // namespace

DetailColumn::DetailColumn(ContentView& state, engine::LocationParser& parser, QWidget* parent)
    : QWidget(parent),
      state_(state),
      map_(new widgets::SegmentedControl(
          QStringLiteral("Mappa"),
          {QStringLiteral("Mappa Regioni"), QStringLiteral("Mappa Province"),
           QStringLiteral("Mappa Vento")})),
      area_(new MapArea(state, parser)),
      analysis_(new widgets::SegmentedControl(QStringLiteral("Analisi Dettagliata"),
                                              {QStringLiteral("Analisi Impianto Eolico"),
                                               QStringLiteral("Analisi Impianto Solare FV")})) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(padded(map_, {16, 12, 16, 12}));
    column->addWidget(area_, 1);
    column->addWidget(new widgets::Divider);
    column->addLayout(padded(analysis_, {12, 8, 12, 8}));

    connect(map_, &widgets::SegmentedControl::indexChosen, this, [this](int index) {
        state_.activeTab = index;
        emit edited();
    });
    connect(analysis_, &widgets::SegmentedControl::indexChosen, this, [this](int index) {
        state_.activeDetailsTab = index;
        emit edited();
    });
    connect(area_, &MapArea::edited, this, &DetailColumn::edited);
}

void DetailColumn::showState() {
    map_->setIndex(state_.activeTab);
    area_->showState();
    analysis_->setIndex(state_.activeDetailsTab);
}

}  // namespace kalvo::app
