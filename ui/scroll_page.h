#pragma once

#include <QScrollArea>

namespace kalvo::ui {

/// A page of controls that scrolls vertically where it is taller than its place: with the wheel,
/// with the keys that scroll and with Home and End. What takes the focus by the keyboard is brought
/// into view. A page that fits leaves the keys to whatever holds it.
class ScrollPage : public QScrollArea {
    Q_OBJECT

 public:
    explicit ScrollPage(QWidget* parent = nullptr);
    ScrollPage(const ScrollPage&) = delete;
    ScrollPage& operator=(const ScrollPage&) = delete;
    ~ScrollPage() override;

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void showFocus(QWidget* focused);
};

}  // namespace kalvo::ui
