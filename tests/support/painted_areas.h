#pragma once

#include <vector>

#include <QObject>
#include <QPaintEvent>
#include <QRect>
#include <QWidget>

namespace kalvo::tests {

/// What of a widget has been painted, each time since this was made or last cleared.
struct PaintedAreas final : QObject {
    std::vector<QRect> list;

    explicit PaintedAreas(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (const auto* paint = dynamic_cast<QPaintEvent*>(event)) list.push_back(paint->rect());
        return false;
    }
};

}  // namespace kalvo::tests
