#pragma once

#include <QLabel>

namespace kalvo::ui {

/// Plain text that can be selected with the mouse, and copied with Ctrl+C or from its context menu.
/// What is copied is the text as it is read, without the marks that only steer its line breaks.
class SelectableLabel : public QLabel {
    Q_OBJECT

 public:
    explicit SelectableLabel(QWidget* parent = nullptr);

 protected:
    bool event(QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

 private:
    /// Copies what is selected, else the whole text.
    void copy() const;
};

}  // namespace kalvo::ui
