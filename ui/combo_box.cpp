#include "ui/combo_box.h"

#include <QListView>
#include <QWheelEvent>

namespace kalvo::ui {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) {
    auto* list = new QListView;
    list->setUniformItemSizes(true);
    setView(list);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaxVisibleItems(14);
}

void ComboBox::openAt(int row) {
    showPopup();
    const QModelIndex entry = model()->index(row, modelColumn());
    view()->setCurrentIndex(entry);
    view()->scrollTo(entry, QAbstractItemView::PositionAtCenter);
}

void ComboBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace kalvo::ui
