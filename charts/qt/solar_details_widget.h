#pragma once

#include <QBoxLayout>
#include <QWidget>

#include "charts/details_notebook_view.h"

namespace kalvo::charts {

class ChartWidget;
class PvEstimatePanel;
class TitledSection;

/// The photovoltaic analysis: a box with the estimate's texts and the chart of sky conditions, one
/// under the other or side by side.
class SolarDetailsWidget final : public QWidget {
    Q_OBJECT

 public:
    explicit SolarDetailsWidget(QWidget* parent = nullptr);

    void setView(const DetailsNotebookView& view);
    void setArrangement(Arrangement arrangement);

 private:
    PvEstimatePanel* box_;
    ChartWidget* chart_;
    TitledSection* section_;
    QBoxLayout* layout_;
};

}  // namespace kalvo::charts
