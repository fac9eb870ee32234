#pragma once

#include "ui/selectable_label.h"

namespace kalvo::ui {

/// A text on a rounded, tinted box.
class TintedLabel final : public SelectableLabel {
    Q_OBJECT

 public:
    TintedLabel(const QFont& font, const QColor& tint, QWidget* parent = nullptr);

    /// Shows a warning symbol before the first line. Screen readers are not told: the text says it.
    void setWarning(bool isWarning);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QColor tint_;
    bool isWarning_ = false;
};

}  // namespace kalvo::ui
