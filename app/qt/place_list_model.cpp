#include "app/qt/place_list_model.h"

#include <algorithm>
#include <iterator>
#include <numeric>

#include "base/qt/qstring.h"
#include "base/shown_text.h"

namespace kalvo::app {

bool PlaceListModel::setNames(const std::vector<std::string>& names) {
    if (names == names_) return false;
    beginResetModel();
    names_ = names;
    endResetModel();
    return true;
}

int PlaceListModel::rowOf(const std::string& name) const {
    const auto found = std::find(names_.begin(), names_.end(), name);
    return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
}

std::vector<int> PlaceListModel::longestRows() const {
    constexpr std::ptrdiff_t kMost = 30;
    std::vector<int> rows(names_.size());
    std::iota(rows.begin(), rows.end(), 0);
    const auto end = rows.begin() + std::min(kMost, std::ssize(rows));
    std::partial_sort(rows.begin(), end, rows.end(),
                      [this](int a, int b) { return name(a).size() > name(b).size(); });
    rows.erase(end, rows.end());
    return rows;
}

int PlaceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(names_.size());
}

QVariant PlaceListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    if (!index.isValid() || index.row() >= rowCount()) return {};
    return base::toQString(base::shownText(name(index.row())));
}

}  // namespace kalvo::app
