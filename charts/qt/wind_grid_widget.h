#pragma once

#include <optional>

#include <QTableWidget>

#include "charts/wind_table_view.h"

namespace kalvo::charts {

/// The cells of a wind table: a header of months with a rule below it, and a row for each
/// wind-speed class that begins with the class's color and label. As large as its content where
/// it fits, else it scrolls.
///
/// A block of figures can be selected: by dragging, with Shift and the arrow keys, a month by its
/// heading, a class by its label, all with Ctrl+A or the corner; Esc ends the selection.
class WindGridWidget final : public QTableWidget {
    Q_OBJECT

 public:
    /// How far from a cell's left edge its text begins, and the space after the last column.
    static constexpr int kInset = 4;

    explicit WindGridWidget(QWidget* parent = nullptr);

    void setTable(const WindTableView& table);

    /// Returns what is selected, if anything.
    [[nodiscard]] std::optional<WindTableView::Block> selectedBlock() const;

    /// What the cells take, without any scroll bar.
    [[nodiscard]] QSize contentSize() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Taller by a scroll bar where the content is wider.
    [[nodiscard]] int heightForWidth(int width) const override;

 signals:
    /// The selection is to be copied.
    void copyRequested();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex& index, const QEvent* event) const override;

 private:
    void setPaper();
    void fitColumns();
};

}  // namespace kalvo::charts
