#pragma once

#include <memory>
#include <vector>

#include <QLayout>

#include "app/detail_heights.h"
#include "charts/qt/details_notebook_widget.h"

namespace kalvo::app {

/// Stands the parts of the detail column one under the other and divides its height among the map
/// and the details. Where the column is too low for both, the page that holds them grows instead.
class DetailLayout final : public QLayout {
    Q_OBJECT

 public:
    /// `column` is the view that shows `page`: its height decides.
    DetailLayout(const QWidget& column, QWidget* page);

    /// Appends a part of fixed height with the space around it, in points.
    void addFixed(QWidget* part, const QMargins& padding);
    void addMap(QWidget* map);
    void addDetails(charts::DetailsNotebookWidget* details);

    /// Whether the column scrolls as one page.
    [[nodiscard]] bool isOnePage() const { return heights_.isOnePage; }

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    void setGeometry(const QRect& page) override;

 private:
    struct Part {
        std::unique_ptr<QLayoutItem> item;
        QMargins padding;
    };
    /// The height of all but the map and the details, in points.
    [[nodiscard]] int fixedHeight() const;
    [[nodiscard]] DetailHeights heightsFor(int width) const;
    [[nodiscard]] int heightOf(const QLayoutItem& item) const;

    const QWidget& column_;
    std::vector<Part> parts_;
    QWidget* map_ = nullptr;
    charts::DetailsNotebookWidget* details_ = nullptr;
    DetailHeights heights_{};
};

}  // namespace kalvo::app
