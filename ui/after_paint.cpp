#include "ui/after_paint.h"

#include <utility>

#include <QEvent>
#include <QTimer>

namespace kalvo::ui {

namespace {

class FrameWatch final : public QObject {
 public:
    FrameWatch(QWidget& window, std::function<void()> action)
        : QObject(&window), action_(std::move(action)) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        window->removeEventFilter(this);
        // The window's children are painted, and the frame sent, before the events that wait.
        QTimer::singleShot(0, this, [this] {
            action_();
            deleteLater();
        });
        return false;
    }

 private:
    std::function<void()> action_;
};

}  // namespace

void afterNextPaint(QWidget& window, std::function<void()> action) {
    new FrameWatch(window, std::move(action));
}

}  // namespace kalvo::ui
