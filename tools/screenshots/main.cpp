// Opens the application's window, works its controls and saves pictures of it. A development aid:
// it never reaches the network, so that its pictures are the same everywhere.

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QTextStream>

#include "app/qt/kalvo_tresk_app.h"
#include "app/qt/report_window.h"
#include "base/qt/qt_clipboard.h"
#include "base/qt/qt_url_opener.h"
#include "ui/theme.h"

namespace {

using namespace kalvo;

class NoNetwork final : public net::HttpSession {
 public:
    base::Task<base::Result<std::string>> get(net::HttpRequest) override {
        co_return base::Failure({"Transport", 1, "no network for pictures"});
    }
};

void addOptions(QCommandLineParser& parser) {
    parser.addPositionalArgument("picture", "The PNG file to write.");
    parser.addHelpOption();
    parser.addOptions(
        {{"dark", "Take the desktop for a dark one."},
         {"contrast", "Take the desktop for one of high contrast."},
         {"scroll", "Scroll the detail column by so many points.", "points"},
         {"size", "The window's size in points.", "width>x<height", "1320x900"},
         {"country", "Choose this entry of the country picker.", "name"},
         {"search", "Type this text into the search field.", "text"},
         {"quantity", "The number of turbines.", "text"},
         {"map", "Choose this map, from 0.", "tab"},
         {"details", "Choose this analysis, from 0.", "tab"},
         {"fetching", "Show a download under way."},
         {"place", "Choose this entry of the place picker.", "label"},
         {"report", "Open the report, or save it where the picture's name ends in pdf."},
         {"sheet", "Open the information sheet."}});
}

/// Makes the theme believe in a desktop of these colors.
void applyDesktopColors(bool isDark, bool isHighContrast) {
    const QColor light = isHighContrast ? QColor(Qt::white) : QColor(0xf0f0f0);
    const QColor dark = isHighContrast ? QColor(Qt::black) : QColor(0x202020);
    QPalette desktop = QApplication::palette();
    desktop.setColor(QPalette::Window, isDark ? dark : light);
    desktop.setColor(QPalette::WindowText, isDark ? light : dark);
    QApplication::setPalette(desktop);
}

/// Lets the window live for a moment: layouts, images and the globe's first frames.
void settle(int milliseconds = 300) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

void work(app::MainScreen& screen, const QCommandLineParser& options) {
    app::ContentView& state = screen.state();
    const auto set = [&](const char* option, auto edit) {
        if (!options.isSet(option)) return;
        edit(options.value(option));
        screen.redraw();
    };
    set("country", [&](const QString& name) { state.selectedCountry = name.toStdString(); });
    set("place", [&](const QString& label) { state.selectedLocationLabel = label.toStdString(); });
    set("search", [&](const QString& text) { state.searchText = text.toStdString(); });
    set("quantity", [&](const QString& text) { state.quantityString = text.toStdString(); });
    set("map", [&](const QString& tab) { state.activeTab = tab.toInt(); });
    set("details", [&](const QString& tab) { state.activeDetailsTab = tab.toInt(); });
    set("scroll", [&](const QString& points) {
        settle();
        screen.findChild<app::DetailColumn*>()->verticalScrollBar()->setValue(points.toInt());
    });
    set("fetching", [&](const QString&) { state.isFetchingOnline = true; });
    set("sheet", [&](const QString&) { state.showInfoSheet = true; });
}

app::ReportWindow* openReport(const QMainWindow& window) {
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_P)) action->trigger();
    }
    return window.findChild<app::ReportWindow*>();
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCommandLineParser options;
    addOptions(options);
    options.process(application);
    if (options.positionalArguments().size() != 1) options.showHelp(2);

    applyDesktopColors(options.isSet("dark"), options.isSet("contrast"));

    const base::Bundle& bundle = base::Bundle::main();
    ui::Theme::apply(bundle);
    NoNetwork network;
    base::Diagnostics& diagnostics = base::Diagnostics::standardOutput();
    engine::LocationParser parser(bundle, diagnostics);
    online::MeteoblueScraper scraper(network, online::ServiceOrigins::publicServices(),
                                     diagnostics);
    base::QtClipboard clipboard;
    base::QtUrlOpener urlOpener;
    app::Kalvo_TreskApp kalvo({parser, scraper, clipboard, diagnostics, bundle},
                              base::NotificationCenter::defaultCenter(), urlOpener);
    QMainWindow* window = kalvo.openWindow();
    const QStringList size = options.value("size").split('x');
    // The screen of these pictures is not the one that the window would be bounded by.
    window->setMinimumSize(0, 0);
    window->resize(size.value(0).toInt(), size.value(1).toInt());
    settle();
    work(*qobject_cast<app::MainScreen*>(window->centralWidget()), options);
    settle();

    const QString file = options.positionalArguments().first();
    QWidget* shown = options.isSet("sheet") ? QApplication::activeModalWidget() : window;
    if (options.isSet("report")) {
        auto* report = openReport(*window);
        if (file.endsWith(".pdf")) {
            report->save(file);
            return QFile::exists(file) ? 0 : 1;
        }
        report->resize(report->width(), 1160);
        settle();
        shown = report;
    }
    if (shown == nullptr || !shown->grab().save(file)) {
        QTextStream(stderr) << "could not save " << file << '\n';
        return 1;
    }
    delete window;
    return 0;
}
