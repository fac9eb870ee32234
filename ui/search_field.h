#pragma once

#include <QAbstractButton>
#include <QLineEdit>

namespace kalvo::ui {

/// A field for a search: a button and Esc clear what was typed, and the arrow down asks for the
/// list of what was found. Clearing counts as typing.
class SearchField final : public QLineEdit {
    Q_OBJECT

 public:
    explicit SearchField(QWidget* parent = nullptr);

 signals:
    void listRequested();

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    void showClearButton(bool shown);
    void placeClearButton();
    void clearTyped();

    QAbstractButton* clear_ = nullptr;  // once there was a text to clear
};

}  // namespace kalvo::ui
