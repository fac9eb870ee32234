#pragma once

#include <functional>

#include <QMainWindow>

namespace kalvo::app {

/// Runs the application, from its first window until its last one is closed, and returns the
/// program's exit status. `opened` is told the first window before it is painted.
int runApplication(
    int argc, char** argv, const std::function<void(QMainWindow&)>& opened = [](QMainWindow&) {});

}  // namespace kalvo::app
