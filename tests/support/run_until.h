#pragma once

#include <chrono>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

namespace kalvo::tests {

/// Runs the event loop until the condition holds; returns whether it came to hold in time. Unlike
/// QTest::qWaitFor it never sleeps, so that a server on the same thread answers at once.
template <class Condition>
bool runUntil(Condition condition, std::chrono::seconds limit = std::chrono::seconds(30)) {
    const QDeadlineTimer deadline(limit);
    QTimer wakeUp;
    wakeUp.start(std::chrono::milliseconds(10));
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Outside of QCoreApplication::exec nothing else does.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

}  // namespace kalvo::tests
