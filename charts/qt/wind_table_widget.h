#pragma once

#include <QPushButton>
#include <QWidget>

#include "charts/wind_table_view.h"

namespace kalvo::charts {

class WindGridWidget;

/// A wind table on its paper with the button that copies it whole.
class WindTableWidget final : public QWidget {
    Q_OBJECT

 public:
    /// The clipboard outlives the widget.
    explicit WindTableWidget(base::Clipboard& clipboard, QWidget* parent = nullptr);

    /// Leaves a copy notice that is being shown as it is.
    void setDistribution(engine::WindDistribution distribution);

 private:
    void copy();
    void copySelection();
    void showNotice();

    base::Clipboard& clipboard_;
    WindTableView view_;
    WindGridWidget* grid_;
    QPushButton* button_;
};

}  // namespace kalvo::charts
