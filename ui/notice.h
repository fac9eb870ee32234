#pragma once

#include <QWidget>

namespace kalvo::ui {

class ElidedLabel;

/// One line that the program tells of its own accord: a symbol and a text on a rounded box, an
/// alert to screen readers, which announce it when it comes.
class Notice final : public QWidget {
    Q_OBJECT

 public:
    /// A warning is a tinted strip of the page; a confirmation lies over the page in the colors of
    /// the other appearance and takes no press.
    enum class Kind { kWarning, kConfirmation };

    explicit Notice(Kind kind, QWidget* parent = nullptr);

    void setText(const QString& text);

    /// As wide as the text needs; a narrower notice ends its text in an ellipsis.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

 private:
    Kind kind_;
    ElidedLabel* label_;
};

}  // namespace kalvo::ui
