#pragma once

#include <QLabel>

namespace kalvo::ui {

/// One line of plain text that never asks for width: where it is too long it ends in an ellipsis,
/// and its tooltip begins with the whole text.
class ElidedLabel final : public QLabel {
    Q_OBJECT

 public:
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    /// What the tooltip says in any case.
    void setNote(const QString& note) { note_ = note; }

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    [[nodiscard]] bool isElided() const;

    QString note_;
};

}  // namespace kalvo::ui
