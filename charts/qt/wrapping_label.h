#pragma once

#include <QLabel>

namespace kalvo::charts {

/// Plain text without a limit of lines, as wide as its longest line where there is room. Wraps
/// between words, and within a word that is longer than a line: a figure from the web can be.
class WrappingLabel final : public QLabel {
    Q_OBJECT

 public:
    explicit WrappingLabel(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kalvo::charts
