#pragma once

#include <cstdio>
#include <fstream>

#include <unistd.h>
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace kalvo::benchmarks {

/// Ends the application once the window has painted its first frame, and prints the resident
/// memory (kB) at that moment.
class EndAfterFirstFrame final : public QObject {
 public:
    explicit EndAfterFirstFrame(QWidget& window) { window.installEventFilter(this); }

    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            // The frame is on its way once the paint event that is running has returned.
            QTimer::singleShot(0, [] {
                std::ifstream statm("/proc/self/statm");
                long pages = 0;
                long resident = 0;
                statm >> pages >> resident;
                std::printf("%ld\n", resident * (sysconf(_SC_PAGESIZE) / 1024));
                std::fflush(stdout);
                _exit(0);
            });
        }
        return false;
    }
};

}  // namespace kalvo::benchmarks
