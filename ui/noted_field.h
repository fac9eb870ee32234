#pragma once

#include <QLineEdit>

namespace kalvo::ui {

/// A field that can say at its right end how it takes what was typed.
class NotedField final : public QLineEdit {
    Q_OBJECT

 public:
    using QLineEdit::QLineEdit;

    /// Shows a note, or none where it is empty; to screen readers it describes the field, and is
    /// announced when it comes.
    void setNote(const QString& note);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QString note_;
};

}  // namespace kalvo::ui
