#pragma once

#include <QTableWidget>

#include "charts/wind_table_view.h"

namespace kalvo::charts {

/// The cells of a wind table: a header of months with a rule below it, and a row for each
/// wind-speed class that begins with the class's color and label. As large as its content where
/// there is room, else it scrolls.
class WindGridWidget final : public QTableWidget {
    Q_OBJECT

 public:
    /// How far from a cell's left edge its text begins, and the space after the last column.
    static constexpr int kInset = 4;

    explicit WindGridWidget(QWidget* parent = nullptr);

    void setTable(const WindTableView& table);

    /// What the cells take, without any scroll bar.
    [[nodiscard]] QSize contentSize() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Taller by a scroll bar where the content is wider.
    [[nodiscard]] int heightForWidth(int width) const override;

 private:
    void setPaper();
    void fitColumns();
};

}  // namespace kalvo::charts
