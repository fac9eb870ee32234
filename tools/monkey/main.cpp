// Works the real window at random and watches that nothing breaks: kalvo_monkey [events] [seed].
// It fails on a state that is not sound, on a hang of the interface thread and on memory that
// keeps growing; a crash fails by itself. The seed is printed, so that a run can be repeated.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <random>

#include <fmt/format.h>
#include <malloc.h>
#include <QApplication>
#include <QTimer>

#include "tools/monkey/invariants.h"
#include "tools/monkey/monkey.h"
#include "tools/monkey/unreliable_session.h"
#include "tools/support/tool_application.h"

namespace {

using namespace kalvo;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// How long one event may hold the interface thread, in processor time: on a machine that others
/// share, the time on the wall tells of them. Memory may still settle after the first half of the
/// events, but not grow by more than kMostGrowth. The sanitizers make everything several times
/// slower and keep freed memory back for a while (256 MB unless told otherwise).
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr Milliseconds kLongestHold{1000};
constexpr long kMostGrowth = (256L + 24L) * 1024;  // kB
#else
constexpr Milliseconds kLongestHold{200};
constexpr long kMostGrowth = 24L * 1024;  // kB
#endif

/// Processor time of this thread.
Milliseconds threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Resident memory once every window is gone: what open ones take depends on their size.
long residentWithoutWindows() {
    for (const app::MainScreen* screen : monkey::Monkey::screens()) delete screen->window();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    malloc_trim(0);
    return tools::residentKilobytes();
}

struct Run {
    int events;
    int done = 0;
    int holds = 0;
    Milliseconds longest{};
    std::string longestAction{};
    long residentAtHalf = 0;
    std::string fault{};
};

void step(Run& run, monkey::Monkey& monkey, const monkey::UnreliableSession& session) {
    const auto start = threadTime();
    const std::string action = monkey.act();
    QApplication::processEvents();
    const auto held = threadTime() - start;
    if (held > run.longest) {
        run.longest = held;
        run.longestAction = action;
    }
    if (held > kLongestHold) ++run.holds;
    for (app::MainScreen* screen : monkey::Monkey::screens()) {
        const std::string fault = monkey::faultOf(screen->state(), session.pending() > 0);
        if (!fault.empty()) run.fault = fmt::format("event {}, {}: {}", run.done, action, fault);
    }
    ++run.done;
    if (run.done == run.events / 2) run.residentAtHalf = residentWithoutWindows();
    if (run.done >= run.events || !run.fault.empty()) QApplication::exit();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Run run{.events = argc > 1 ? std::atoi(argv[1]) : 20'000};
    const std::uint64_t seed =
        argc > 2 ? std::strtoull(argv[2], nullptr, 10) : std::random_device{}();
    std::printf("seed %llu, %d events\n", static_cast<unsigned long long>(seed), run.events);
    std::fflush(stdout);
    std::mt19937_64 random(seed);

    monkey::UnreliableSession session(random);
    tools::ToolApplication kalvo(session);
    kalvo.openScreen();

    monkey::Monkey monkey(kalvo.application(), random);
    QTimer timer;
    timer.callOnTimeout([&] { step(run, monkey, session); });
    timer.start(0);
    QApplication::exec();
    timer.stop();

    const long growth = residentWithoutWindows() - run.residentAtHalf;
    std::printf(
        "%d events done; longest hold %.0f ms (%s), %d over %.0f ms; "
        "memory grew by %ld kB in the second half\n",
        run.done, run.longest.count(), run.longestAction.c_str(), run.holds, kLongestHold.count(),
        growth);
    if (!run.fault.empty()) std::printf("fault: %s\n", run.fault.c_str());
    const bool isSound = run.fault.empty() && run.holds == 0 && growth < kMostGrowth;
    return isSound ? EXIT_SUCCESS : EXIT_FAILURE;
}
