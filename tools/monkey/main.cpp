// Works the real window at random and watches that nothing breaks: kalvo_monkey [events] [seed].
// It fails on a state that is not sound, on a hang of the interface thread and on memory that
// keeps growing; a crash fails by itself. The seed is printed, so that a run can be had again.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <random>

#include <unistd.h>
#include <QApplication>
#include <QTimer>

#include "platform/qt/qt_pasteboard.h"
#include "tools/monkey/invariants.h"
#include "tools/monkey/monkey.h"
#include "tools/monkey/unreliable_session.h"
#include "widgets/theme.h"

namespace {

using namespace kalvo;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// How long one event may hold the interface thread, in processor time: on a machine that others
/// share, the time on the wall tells of them.
constexpr Milliseconds kLongestHold{200};
/// Memory may still settle after the first half of the events, but not grow by more than this.
constexpr long kMostGrowth = 24L * 1024 * 1024;

class NoWorkspace final : public platform::Workspace {
 public:
    bool open(std::string_view) override { return true; }
};

class NoDiagnostics final : public platform::Diagnostics {
 public:
    void print(std::string_view) override {}
};

long residentBytes() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    long resident = 0;
    statm >> pages >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

/// Processor time of this thread.
Milliseconds threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
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
        if (!fault.empty())
            run.fault = "event " + std::to_string(run.done) + ", " + action + ": " + fault;
    }
    ++run.done;
    if (run.done == run.events / 2) run.residentAtHalf = residentBytes();
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

    const platform::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    widgets::Theme::apply(bundle);
    NoDiagnostics diagnostics;
    engine::LocationParser parser(bundle, diagnostics);
    monkey::UnreliableSession session(random);
    online::MeteoblueScraper scraper(session, online::ServiceOrigins::publicServices(),
                                     diagnostics);
    platform::QtPasteboard pasteboard;
    NoWorkspace workspace;
    app::Kalvo_TreskApp kalvo({parser, scraper, pasteboard, diagnostics, bundle},
                              platform::NotificationCenter::defaultCenter(), workspace);
    kalvo.openWindow();

    monkey::Monkey monkey(kalvo, random);
    QTimer timer;
    timer.callOnTimeout([&] { step(run, monkey, session); });
    timer.start(0);
    QApplication::exec();
    timer.stop();

    const long growth = residentBytes() - run.residentAtHalf;
    for (const app::MainScreen* screen : monkey::Monkey::screens()) delete screen->window();
    std::printf(
        "%d events done; longest hold %.0f ms (%s), %d over 200 ms; "
        "memory grew by %ld kB in the second half\n",
        run.done, run.longest.count(), run.longestAction.c_str(), run.holds, growth / 1024);
    if (!run.fault.empty()) std::printf("fault: %s\n", run.fault.c_str());
    const bool isSound = run.fault.empty() && run.holds == 0 && growth < kMostGrowth;
    return isSound ? EXIT_SUCCESS : EXIT_FAILURE;
}
