#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "charts/details_notebook_view.h"

namespace kalvo::widgets {
class Divider;
}

namespace kalvo::charts {

class TextBlockWidget;

/// The texts of the photovoltaic estimate on a yellow box.
class EstimateBoxWidget final : public QWidget {
    Q_OBJECT

 public:
    explicit EstimateBoxWidget(QWidget* parent = nullptr);

    void setTexts(const QString& details, const QString& result);
    void arrange(Arrangement arrangement);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Arrangement arrangement_ = Arrangement::kSideBySide;
    TextBlockWidget* title_;
    TextBlockWidget* details_;
    widgets::Divider* rule_;
    TextBlockWidget* result_;
    QVBoxLayout* layout_;
};

}  // namespace kalvo::charts
