#pragma once

#include <random>
#include <string>

#include <QPointer>
#include <QWidget>

#include "app/qt/kalvo_tresk_app.h"
#include "app/qt/main_screen.h"

namespace kalvo::monkey {

/// Works the windows of the application like somebody without a plan: clicks, keys, drags, wheel
/// turns, resizes and changes of country, drawn from the random numbers of the run.
class Monkey {
 public:
    Monkey(app::Kalvo_TreskApp& application, std::mt19937_64& random)
        : application_(application), random_(random) {}

    /// Does one thing, and returns what, for the log.
    std::string act();

    /// The screens of all open windows.
    [[nodiscard]] static std::vector<app::MainScreen*> screens();

 private:
    [[nodiscard]] int below(int bound) {
        return std::uniform_int_distribution(0, bound - 1)(random_);
    }
    /// The window that would get the input now: a popup, a dialog, or any of the main windows.
    [[nodiscard]] QWidget* target();
    [[nodiscard]] QPoint anywhere(const QWidget& window);

    void click(QWidget& window, Qt::MouseButton button);
    void drag(QWidget& window);
    void turnWheel(QWidget& window);
    void pressKey(QWidget& window);
    void resize();
    void changeCountry();
    void openOrCloseWindow();

    app::Kalvo_TreskApp& application_;
    std::mt19937_64& random_;
};

}  // namespace kalvo::monkey
