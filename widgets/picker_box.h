#pragma once

#include <QComboBox>

namespace kalvo::widgets {

/// A drop-down menu that opens at once whatever its length: neither its width nor its list is
/// measured entry by entry. The wheel scrolls the page it stands on, not its choice.
class PickerBox final : public QComboBox {
    Q_OBJECT

 public:
    explicit PickerBox(QWidget* parent = nullptr);

 protected:
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace kalvo::widgets
