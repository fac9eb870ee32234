#include "tools/monkey/monkey.h"

#include <array>

#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QWheelEvent>

namespace kalvo::monkey {

namespace {

constexpr int kMostWindows = 3;

/// The deepest child at a point, which is what a pointer there would reach.
struct Hit {
    QWidget* widget;
    QPoint point;
};

Hit hitAt(QWidget& window, QPoint point) {
    QWidget* child = window.childAt(point);
    if (child == nullptr) return {&window, point};
    return {child, child->mapFrom(&window, point)};
}

}  // namespace

std::string Monkey::act() {
    QWidget* window = target();
    if (window == nullptr) {
        application_.openWindow();
        return "opens a window, there was none";
    }
    const int choice = below(100);
    if (choice < 35) {
        click(*window, Qt::LeftButton);
        return "clicks";
    }
    if (choice < 40) {
        click(*window, Qt::RightButton);
        return "clicks right";
    }
    if (choice < 55) {
        drag(*window);
        return "drags";
    }
    if (choice < 62) {
        turnWheel(*window);
        return "turns the wheel";
    }
    if (choice < 90) {
        pressKey(*window);
        return "presses a key";
    }
    if (choice < 93) {
        resize();
        return "resizes a window";
    }
    if (choice < 98) {
        changeCountry();
        return "changes the country";
    }
    openOrCloseWindow();
    return "opens or closes a window";
}

std::vector<app::MainScreen*> Monkey::screens() {
    std::vector<app::MainScreen*> screens;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const auto* main = qobject_cast<QMainWindow*>(window);
        if (main == nullptr || !main->isVisible()) continue;
        if (auto* screen = qobject_cast<app::MainScreen*>(main->centralWidget())) {
            screens.push_back(screen);
        }
    }
    return screens;
}

QWidget* Monkey::target() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* dialog = QApplication::activeModalWidget()) return dialog;
    const auto open = screens();
    if (open.empty()) return nullptr;
    QWidget* window =
        open[static_cast<std::size_t>(below(static_cast<int>(open.size())))]->window();
    QApplication::setActiveWindow(window);
    return window;
}

QPoint Monkey::anywhere(const QWidget& window) {
    return {below(std::max(1, window.width())), below(std::max(1, window.height()))};
}

void Monkey::click(QWidget& window, Qt::MouseButton button) {
    const Hit hit = hitAt(window, anywhere(window));
    const QPointer<QWidget> widget = hit.widget;
    QTest::mouseClick(hit.widget, button, {}, hit.point);
    if (widget && below(10) == 0) QTest::mouseDClick(widget, button, {}, hit.point);
}

void Monkey::drag(QWidget& window) {
    const Hit hit = hitAt(window, anywhere(window));
    const QPointer<QWidget> widget = hit.widget;
    QTest::mousePress(hit.widget, Qt::LeftButton, {}, hit.point);
    QPoint point = hit.point;
    for (int moves = below(8); moves > 0 && widget; --moves) {
        point += QPoint(below(121) - 60, below(121) - 60);
        QTest::mouseMove(widget, point);
    }
    if (widget) QTest::mouseRelease(widget, Qt::LeftButton, {}, point);
}

void Monkey::turnWheel(QWidget& window) {
    const Hit hit = hitAt(window, anywhere(window));
    const int angle = (below(2) == 0 ? 120 : -120) * (1 + below(5));
    QWheelEvent event(hit.point, hit.widget->mapToGlobal(hit.point), {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(hit.widget, &event);
}

void Monkey::pressKey(QWidget& window) {
    struct Stroke {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const std::array kStrokes{Stroke{Qt::Key_Tab, {}},
                                     Stroke{Qt::Key_Backtab, Qt::ShiftModifier},
                                     Stroke{Qt::Key_Return, {}},
                                     Stroke{Qt::Key_Space, {}},
                                     Stroke{Qt::Key_Escape, {}},
                                     Stroke{Qt::Key_Up, {}},
                                     Stroke{Qt::Key_Down, {}},
                                     Stroke{Qt::Key_Left, {}},
                                     Stroke{Qt::Key_Right, {}},
                                     Stroke{Qt::Key_PageDown, {}},
                                     Stroke{Qt::Key_Home, {}},
                                     Stroke{Qt::Key_End, {}},
                                     Stroke{Qt::Key_Plus, {}},
                                     Stroke{Qt::Key_Minus, {}},
                                     Stroke{Qt::Key_Backspace, {}},
                                     Stroke{Qt::Key_A, {}},
                                     Stroke{Qt::Key_R, {}},
                                     Stroke{Qt::Key_O, {}},
                                     Stroke{Qt::Key_M, {}},
                                     Stroke{Qt::Key_0, {}},
                                     Stroke{Qt::Key_7, {}},
                                     Stroke{Qt::Key_F1, {}},
                                     Stroke{Qt::Key_F, Qt::ControlModifier},
                                     Stroke{Qt::Key_1, Qt::ControlModifier},
                                     Stroke{Qt::Key_2, Qt::ControlModifier},
                                     Stroke{Qt::Key_3, Qt::ControlModifier},
                                     Stroke{Qt::Key_A, Qt::ControlModifier},
                                     Stroke{Qt::Key_V, Qt::ControlModifier},
                                     Stroke{Qt::Key_F10, {}}};
    QWidget* focused = QApplication::focusWidget();
    QWidget* receiver = focused != nullptr && focused->window() == &window ? focused : &window;
    const Stroke& stroke = kStrokes[static_cast<std::size_t>(below(kStrokes.size()))];
    QTest::keyClick(receiver, stroke.key, stroke.modifiers);
}

void Monkey::resize() {
    const auto open = screens();
    if (open.empty()) return;
    QWidget* window =
        open[static_cast<std::size_t>(below(static_cast<int>(open.size())))]->window();
    window->resize(600 + below(1400), 400 + below(900));
}

void Monkey::changeCountry() {
    const auto open = screens();
    if (open.empty()) return;
    app::MainScreen* screen = open[static_cast<std::size_t>(below(static_cast<int>(open.size())))];
    screen->state().selectedCountry = screen->state().countries[static_cast<std::size_t>(below(4))];
    screen->redraw();
}

void Monkey::openOrCloseWindow() {
    const auto open = screens();
    if (static_cast<int>(open.size()) >= kMostWindows || (open.size() > 1 && below(2) == 0)) {
        open[static_cast<std::size_t>(below(static_cast<int>(open.size())))]->window()->close();
    } else {
        application_.openWindow();
    }
}

}  // namespace kalvo::monkey
