#pragma once

#include <QDialog>

namespace kalvo::app {

/// The sheet that says what the application does, what becomes of the person's data and whose the
/// sources are. Modal over its window and of a fixed size; it deletes itself when it is closed.
class InfoSheetView final : public QDialog {
    Q_OBJECT

 public:
    explicit InfoSheetView(QWidget* parent);

 protected:
    /// Hands the keys that scroll on to the texts, wherever the focus is.
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QWidget* texts_;
};

}  // namespace kalvo::app
