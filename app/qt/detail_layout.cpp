#include "app/qt/detail_layout.h"

namespace kalvo::app {

DetailLayout::DetailLayout(const QWidget& column, QWidget* page) : QLayout(page), column_(column) {
    setContentsMargins(0, 0, 0, 0);
}

void DetailLayout::addFixed(QWidget* part, const QMargins& padding) {
    addWidget(part);
    parts_.back().padding = padding;
}

void DetailLayout::addMap(QWidget* map) {
    map_ = map;
    addWidget(map);
}

void DetailLayout::addDetails(charts::DetailsNotebookWidget* details) {
    details_ = details;
    addWidget(details);
}

void DetailLayout::addItem(QLayoutItem* item) {
    parts_.push_back({.item = std::unique_ptr<QLayoutItem>(item), .padding = {}});
}

int DetailLayout::count() const { return static_cast<int>(parts_.size()); }

QLayoutItem* DetailLayout::itemAt(int index) const {
    if (index < 0 || index >= count()) return nullptr;
    return parts_[static_cast<std::size_t>(index)].item.get();
}

QLayoutItem* DetailLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    const auto part = parts_.begin() + index;
    QLayoutItem* item = part->item.release();
    parts_.erase(part);
    return item;
}

int DetailLayout::fixedHeight() const {
    int height = 0;
    for (const auto& [item, padding] : parts_) {
        if (item->isEmpty() || item->widget() == map_ || item->widget() == details_) continue;
        height += padding.top() + item->sizeHint().height() + padding.bottom();
    }
    return height;
}

DetailHeights DetailLayout::heightsFor(int width) const {
    // Not by the width of the page, so that the page's scroll bar never decides on itself.
    DetailHeights heights = divideDetailHeights(column_.height(), fixedHeight(),
                                                details_->heightForWidth(column_.width()));
    if (heights.isOnePage) heights.details = details_->shownHeight(width);
    return heights;
}

QSize DetailLayout::sizeHint() const { return {column_.width(), heightForWidth(column_.width())}; }

int DetailLayout::heightForWidth(int width) const {
    const DetailHeights heights = heightsFor(width);
    return fixedHeight() + heights.map + heights.details;
}

int DetailLayout::heightOf(const QLayoutItem& item) const {
    if (item.widget() == map_) return heights_.map;
    if (item.widget() == details_) return heights_.details;
    return item.sizeHint().height();
}

void DetailLayout::setGeometry(const QRect& page) {
    QLayout::setGeometry(page);
    heights_ = heightsFor(page.width());
    details_->setVerticalScrollBarPolicy(heights_.isOnePage ? Qt::ScrollBarAlwaysOff
                                                            : Qt::ScrollBarAsNeeded);
    QRect place = page;
    for (const auto& [item, padding] : parts_) {
        if (item->isEmpty()) continue;
        place.setHeight(padding.top() + heightOf(*item) + padding.bottom());
        item->setGeometry(place.marginsRemoved(padding));
        place.moveTop(place.top() + place.height());
    }
}

}  // namespace kalvo::app
