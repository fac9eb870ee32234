// Lets the globe turn for a while, with a thousand recalculations spread over it, and prints the
// resident memory every minute: kalvo_soak [minutes]. It fails when the memory after the first
// minute does not stay within 2 MB.

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QTimer>

#include "tools/support/tool_application.h"

namespace {

using namespace kalvo;

constexpr int kRecalculations = 1000;
constexpr int kMillisecondsPerMinute = 60'000;
constexpr long kMostSpread = 2048;  // kB

/// A place found online, so that the globe stays in sight while figures are computed.
void showAPlace(app::ContentView& state) {
    const std::string label = "Wellington (NZ)";
    state.onlineLocations[label] = {.label = label,
                                    .city = "Wellington",
                                    .province = "Nuova Zelanda",
                                    .region = "NZ",
                                    .kwh1kw = 3000.0,
                                    .kwh2kw = 6000.0,
                                    .kwh3kw = 9000.0,
                                    .latitude = -41.29,
                                    .longitude = 174.78,
                                    .station = "",
                                    .stationOwner = "",
                                    .source = ""};
    state.filteredLocationNames = {label};
    state.selectedLocationLabel = label;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const int minutes = std::max(2, argc > 1 ? std::atoi(argv[1]) : 30);

    tools::NoNetwork network;
    tools::ToolApplication kalvo(network);
    app::MainScreen& screen = kalvo.openScreen();
    showAPlace(screen.state());

    int done = 0;
    QTimer recalculation;
    recalculation.callOnTimeout([&] {
        if (done == kRecalculations) return;
        ++done;
        screen.state().quantityString = std::to_string(1 + done % 9);
        screen.state().selectedTurbineKW = 1 + done % 3;
        screen.redraw();
    });
    recalculation.start(minutes * kMillisecondsPerMinute / (kRecalculations + 10));

    long lowest = 0;
    long highest = 0;
    int minute = 0;
    QTimer minuteTimer;
    minuteTimer.callOnTimeout([&] {
        ++minute;
        const long resident = tools::residentKilobytes();
        lowest = minute == 1 ? resident : std::min(lowest, resident);
        highest = std::max(highest, resident);
        std::printf("minute %d: %ld kB resident, %d recalculations\n", minute, resident, done);
        std::fflush(stdout);
        if (minute == minutes) QApplication::quit();
    });
    minuteTimer.start(kMillisecondsPerMinute);
    QApplication::exec();

    std::printf("spread after the first minute: %ld kB\n", highest - lowest);
    return highest - lowest <= kMostSpread ? EXIT_SUCCESS : EXIT_FAILURE;
}
