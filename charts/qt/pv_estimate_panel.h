#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "charts/details_notebook_view.h"

namespace kalvo::ui {
class Divider;
}

namespace kalvo::charts {

class WrappingLabel;

/// The texts of the photovoltaic estimate on a yellow box.
class PvEstimatePanel final : public QWidget {
    Q_OBJECT

 public:
    explicit PvEstimatePanel(QWidget* parent = nullptr);

    void setTexts(const QString& details, const QString& result);
    void setArrangement(Arrangement arrangement);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Arrangement arrangement_ = Arrangement::kSideBySide;
    WrappingLabel* title_;
    WrappingLabel* details_;
    ui::Divider* rule_;
    WrappingLabel* result_;
    QVBoxLayout* layout_;
};

}  // namespace kalvo::charts
