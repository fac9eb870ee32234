#include "app/qt/kalvo_tresk_app.h"

#include <algorithm>
#include <array>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>

#include "app/branding.h"
#include "app/qt/about_panel.h"
#include "app/qt/application_icon.h"
#include "app/qt/report_window.h"
#include "app/report_content.h"
#include "base/qt/qstring.h"
#include "ui/after_paint.h"

namespace kalvo::app {

namespace {

struct MapItem {
    const char* title;
    const char* notification;
};

constexpr std::array kMapItems{MapItem{"Mappa &Regioni", "SelectTab0"},
                               MapItem{"Mappa &Province", "SelectTab1"},
                               MapItem{"Mappa del &Vento", "SelectTab2"}};

/// Returns the size bounded by what a window can have on a screen, in points.
QSize boundedToScreen(const QSize& size, const QScreen* screen) {
    constexpr int kTitleBar = 48;  // that a window's frame may take
    if (screen == nullptr) return size;
    return size.boundedTo(screen->availableSize() - QSize(0, kTitleBar));
}

/// Gives a window the size at which everything stands side by side, and a minimum at which
/// everything can be reached, each as far as the screen has the space.
void fitToScreen(QWidget& window) {
    constexpr QSize kPreferred(1320, 900);
    constexpr QSize kMinimum(900, 600);
    constexpr QSize kLeastMinimum(640, 480);
    const QScreen* screen = window.screen();
    window.setMinimumSize(boundedToScreen(kMinimum, screen).expandedTo(kLeastMinimum));
    window.resize(boundedToScreen(kPreferred, screen));
}

}  // namespace

Kalvo_TreskApp::Kalvo_TreskApp(const Services& services,
                               base::NotificationCenter& notifications,
                               base::UrlOpener& urlOpener)
    : services_(services), notifications_(notifications), urlOpener_(urlOpener) {
    for (std::size_t tab = 0; tab < kMapItems.size(); ++tab) {
        observations_.push_back(notifications_.observe(
            kMapItems[tab].notification, [this, tab] { selectMap(static_cast<int>(tab)); }));
    }
}

void Kalvo_TreskApp::showIcon() {
    if (!QApplication::windowIcon().isNull()) return;
    const QImage icon = loadApplicationIcon(services_.bundle);
    if (!icon.isNull()) QApplication::setWindowIcon(QIcon(QPixmap::fromImage(icon)));
}

QMainWindow* Kalvo_TreskApp::openWindow() {
    auto* window = new QMainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(base::toQString(kApplicationName));
    auto* screen = new MainScreen(services_);
    window->setCentralWidget(screen);
    addMenus(*window, *screen);
    fitToScreen(*window);
    ui::afterNextPaint(*window, [this] { showIcon(); });
    window->show();
    return window;
}

void Kalvo_TreskApp::addMenus(QMainWindow& window, MainScreen& screen) {
    addApplicationMenu(window, screen);
    addMapMenu(window, screen);
    addPrivacyMenu(window);
    auto* information = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    connect(information, &QShortcut::activated, &screen, &MainScreen::showInformation);
}

void Kalvo_TreskApp::addApplicationMenu(QMainWindow& window, MainScreen& screen) {
    QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&Kalvo Tresk"));
    menu->addAction(QStringLiteral("&Informazioni su Kalvo Wind && Solar"), &window,
                    [&window] { (new AboutPanel(&window))->open(); });
    menu->addSeparator();
    menu->addAction(QStringLiteral("&Nuova finestra"), QKeySequence(Qt::CTRL | Qt::Key_N), this,
                    [this] { openWindow(); });
    menu->addAction(QStringLiteral("&Cerca località"), QKeySequence(Qt::CTRL | Qt::Key_F), &screen,
                    &MainScreen::focusSearchField);
    QAction* report =
        menu->addAction(QStringLiteral("&Relazione…"), QKeySequence(Qt::CTRL | Qt::Key_P), this,
                        [this, &window, &screen] { showReport(window, screen.state()); });
    const auto enable = [report, &screen] { report->setEnabled(showsResult(screen.state())); };
    connect(&screen, &MainScreen::redrawn, report, enable);
    enable();
    menu->addSeparator();
    menu->addAction(QStringLiteral("C&hiudi finestra"), QKeySequence(Qt::CTRL | Qt::Key_W), &window,
                    &QWidget::close);
    menu->addAction(QStringLiteral("&Esci"), QKeySequence(Qt::CTRL | Qt::Key_Q), qApp,
                    &QApplication::closeAllWindows);
}

void Kalvo_TreskApp::showReport(QMainWindow& window, const ContentView& state) {
    auto* shown = window.findChild<ReportWindow*>();
    if (shown == nullptr) shown = new ReportWindow(services_.bundle, urlOpener_, &window);
    shown->setReport(makeReport(state, services_, std::chrono::system_clock::now()));
    shown->show();
    shown->raise();
    shown->activateWindow();
}

void Kalvo_TreskApp::addMapMenu(QMainWindow& window, MainScreen& screen) {
    QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&Visualizza && Mappe"));
    int key = Qt::Key_1;
    auto* maps = new QActionGroup(menu);
    for (const MapItem& item : kMapItems) {
        QAction* action =
            menu->addAction(base::toQString(item.title), QKeySequence(Qt::CTRL | key++), this,
                            [this, item] { notifications_.post(item.notification); });
        action->setCheckable(true);
        maps->addAction(action);
    }
    connect(menu, &QMenu::aboutToShow, &screen,
            [maps, &screen] { maps->actions().at(screen.state().activeTab)->setChecked(true); });
}

void Kalvo_TreskApp::addPrivacyMenu(QMainWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(QStringLiteral("&Privacy && Info"));
    menu->addAction(QStringLiteral("&Visita il sito web di Kalvo"), this,
                    [this] { urlOpener_.open(kWebAddress); });
}

void Kalvo_TreskApp::selectMap(int tab) {
    const auto* window = qobject_cast<QMainWindow*>(QApplication::activeWindow());
    if (window == nullptr) return;
    if (auto* screen = qobject_cast<MainScreen*>(window->centralWidget())) screen->selectMap(tab);
}

}  // namespace kalvo::app
