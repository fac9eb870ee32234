#pragma once

#include <QBoxLayout>
#include <QWidget>

#include "base/clipboard.h"
#include "charts/details_notebook_view.h"

namespace kalvo::charts {

class ChartWidget;
class TitledSection;
class WindTableWidget;

/// The wind analysis: the table, the monthly chart and the wind rose, one under the other or side
/// by side.
class WindDetailsWidget final : public QWidget {
    Q_OBJECT

 public:
    /// The clipboard outlives the widget.
    explicit WindDetailsWidget(base::Clipboard& clipboard, QWidget* parent = nullptr);

    void setView(const DetailsNotebookView& view);
    /// The width in points from which the three stand side by side, and a vertical scroll bar too,
    /// without anything being cut (but a table of numbers far from ordinary, which scrolls).
    [[nodiscard]] int sideBySideWidth() const;
    void setArrangement(Arrangement arrangement);

 private:
    WindTableWidget* table_;
    ChartWidget* chart_;
    ChartWidget* rose_;
    TitledSection* tableSection_;
    TitledSection* chartSection_;
    TitledSection* roseSection_;
    QBoxLayout* layout_;
    int tableWidth_;  // of ordinary numbers
};

}  // namespace kalvo::charts
