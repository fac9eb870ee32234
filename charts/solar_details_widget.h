#pragma once

#include <QBoxLayout>
#include <QWidget>

#include "charts/details_notebook_view.h"

namespace kalvo::charts {

class ChartWidget;
class EstimateBoxWidget;
class SectionWidget;

/// The photovoltaic analysis: a box with the estimate's texts and the chart of sky conditions, one
/// under the other or side by side.
class SolarDetailsWidget final : public QWidget {
    Q_OBJECT

 public:
    explicit SolarDetailsWidget(QWidget* parent = nullptr);

    void setView(const DetailsNotebookView& view);
    void arrange(Arrangement arrangement);

 private:
    EstimateBoxWidget* box_;
    ChartWidget* chart_;
    SectionWidget* section_;
    QBoxLayout* layout_;
};

}  // namespace kalvo::charts
