#pragma once

#include <functional>
#include <vector>

#include <QComboBox>

namespace kalvo::ui {

/// Returns a label that ends in an ellipsis where it does not fit `width` points. Of a label with a
/// note behind the name, as in "Roma (Italy) [lat: 41.9, lon: 12.5]", the name is shortened: the
/// note tells places of the same name apart.
[[nodiscard]] QString elidedEntry(const QString& label, const QFontMetrics& metrics, int width);

/// A drop-down menu that opens at once whatever its length: its list is not measured entry by
/// entry. The list is as wide as its longest entries, up to 480 points, a tick marks the chosen
/// one, and what was typed or is chosen stands in its middle. The wheel scrolls the page that the
/// menu stands on, not its choice.
class ComboBox final : public QComboBox {
    Q_OBJECT

 public:
    explicit ComboBox(QWidget* parent = nullptr);

    /// Tells the rows with the longest texts; every row is measured where nothing is set.
    std::function<std::vector<int>()> longestRows;

    /// Opens the list on an entry, which Return chooses; the choice stays until then.
    void openAt(int row);
    /// The whole text of the chosen entry where the closed menu has no space for it, else nothing.
    [[nodiscard]] QString elidedText() const;

    void showPopup() override;

 protected:
    void wheelEvent(QWheelEvent* event) override;

 private:
    /// Gives the list its own look, before it is first shown.
    void setUpPopup();
    [[nodiscard]] int popupWidth() const;

    bool isPopupSetUp_ = false;
};

}  // namespace kalvo::ui
