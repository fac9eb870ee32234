#pragma once

#include <QLabel>

namespace kalvo::widgets {

/// A text on a rounded, tinted ground.
class TextBox final : public QLabel {
    Q_OBJECT

 public:
    TextBox(const QFont& font, const QColor& ground, QWidget* parent = nullptr);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QColor ground_;
};

}  // namespace kalvo::widgets
