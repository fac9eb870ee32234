#pragma once

#include <QLabel>

namespace kalvo::ui {

/// A text on a rounded, tinted ground.
class TintedLabel final : public QLabel {
    Q_OBJECT

 public:
    TintedLabel(const QFont& font, const QColor& ground, QWidget* parent = nullptr);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QColor ground_;
};

}  // namespace kalvo::ui
