#pragma once

#include <QComboBox>

namespace kalvo::ui {

/// A drop-down menu that opens at once whatever its length: neither its width nor its list is
/// measured entry by entry. The wheel scrolls the page it stands on, not its choice.
class ComboBox final : public QComboBox {
    Q_OBJECT

 public:
    explicit ComboBox(QWidget* parent = nullptr);

    /// Opens the list on an entry, which Return chooses; the choice stays until then.
    void openAt(int row);

 protected:
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace kalvo::ui
