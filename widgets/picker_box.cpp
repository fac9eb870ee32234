#include "widgets/picker_box.h"

#include <QListView>
#include <QWheelEvent>

namespace kalvo::widgets {

PickerBox::PickerBox(QWidget* parent) : QComboBox(parent) {
    auto* list = new QListView;
    list->setUniformItemSizes(true);
    setView(list);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaxVisibleItems(14);
}

void PickerBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace kalvo::widgets
