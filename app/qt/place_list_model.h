#pragma once

#include <string>
#include <vector>

#include <QAbstractListModel>

namespace kalvo::app {

/// The names of the place picker, thousands of them, as they stand in the state: none is turned
/// into a text of the toolkit before it is shown.
class PlaceListModel final : public QAbstractListModel {
    Q_OBJECT

 public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows these names; does nothing, and returns false, when it shows them already.
    bool setNames(const std::vector<std::string>& names);

    /// The row of a name, or -1; the first one where it stands twice.
    [[nodiscard]] int rowOf(const std::string& name) const;
    /// The rows of the longest names, at most 30.
    [[nodiscard]] std::vector<int> longestRows() const;
    [[nodiscard]] const std::string& name(int row) const {
        return names_[static_cast<std::size_t>(row)];
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// Nothing for a row that is not there.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
    std::vector<std::string> names_;
};

}  // namespace kalvo::app
