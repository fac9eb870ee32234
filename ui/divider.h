#pragma once

#include <QWidget>

namespace kalvo::ui {

/// A horizontal line between parts of a page.
class Divider final : public QWidget {
    Q_OBJECT

 public:
    explicit Divider(QWidget* parent = nullptr);

 protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kalvo::ui
