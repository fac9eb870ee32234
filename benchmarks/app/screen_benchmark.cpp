// What a person waits for: a country chosen, a letter typed, a figure changed.

#include <array>

#include <benchmark/benchmark.h>
#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include "app/qt/report_window.h"
#include "tools/support/tool_application.h"

namespace {

using namespace kalvo;

struct Opened {
    tools::NoNetwork network;
    tools::ToolApplication kalvo{network};
    app::MainScreen& screen = kalvo.openScreen();
};

app::MainScreen& screen() {
    static Opened opened;
    QApplication::processEvents();
    return opened.screen;
}

/// Everything up to the frame on the screen.
void choose(app::MainScreen& shown, std::string_view country) {
    shown.state().selectedCountry = country;
    shown.redraw();
    shown.grab();
    QApplication::processEvents();
}

void choosingItaly(benchmark::State& state) {
    app::MainScreen& shown = screen();
    for ([[maybe_unused]] auto iteration : state) {
        state.PauseTiming();
        choose(shown, app::kOnlineCountry);
        state.ResumeTiming();
        choose(shown, "Italia");
    }
}
BENCHMARK(choosingItaly)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// The state's part of a keystroke, without drawing, for a text that is typed letter by letter.
void keystroke(benchmark::State& state, const char* typed) {
    app::MainScreen& shown = screen();
    choose(shown, "Italia");
    app::ContentView& content = shown.state();
    app::ScreenEvents events(content);
    const std::string text(typed);
    std::size_t length = 0;
    for ([[maybe_unused]] auto iteration : state) {
        content.searchText = text.substr(0, length++ % (text.size() + 1));
        events.dispatch();
    }
    content.searchText.clear();
}
BENCHMARK_CAPTURE(keystroke, roma, "roma")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, accents, "SAN GIOVANNÌ È")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, one_letter, "a")->Unit(benchmark::kMillisecond);

/// The same with everything on the screen.
void keystrokeDrawn(benchmark::State& state) {
    app::MainScreen& shown = screen();
    choose(shown, "Italia");
    const std::array<const char*, 4> texts{"r", "ro", "rom", "roma"};
    std::size_t next = 0;
    for ([[maybe_unused]] auto iteration : state) {
        shown.state().searchText = texts[next++ % texts.size()];
        shown.redraw();
        shown.grab();
    }
}
BENCHMARK(keystrokeDrawn)->Unit(benchmark::kMillisecond);

/// Calls the report of what is shown, up to its first frame.
app::ReportWindow* openReport(app::MainScreen& shown) {
    QWidget* window = shown.window();
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_P)) action->trigger();
    }
    auto* report = window->findChild<app::ReportWindow*>();
    report->grab();
    return report;
}

void openingTheReport(benchmark::State& state) {
    app::MainScreen& shown = screen();
    choose(shown, "Italia");
    for ([[maybe_unused]] auto iteration : state) delete openReport(shown);
}
BENCHMARK(openingTheReport)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// Composes the report of an Italian place and writes it; tells the size of the file.
void savingTheReport(benchmark::State& state) {
    app::MainScreen& shown = screen();
    choose(shown, "Italia");
    app::ReportWindow* report = openReport(shown);
    const QTemporaryDir folder;
    const QString path = folder.filePath("report.pdf");
    for ([[maybe_unused]] auto iteration : state) report->save(path);
    state.counters["kB"] = static_cast<double>(QFileInfo(path).size()) / 1000;
    delete report;
}
BENCHMARK(savingTheReport)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
