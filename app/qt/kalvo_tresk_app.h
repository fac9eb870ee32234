#pragma once

#include <QMainWindow>
#include <QObject>

#include "app/content_view.h"
#include "app/qt/main_screen.h"
#include "base/notification_center.h"
#include "base/url_opener.h"

namespace kalvo::app {

/// The application round its windows: its icon, its menus, and the windows themselves, each with
/// a state of its own.
class Kalvo_TreskApp final : public QObject {
    Q_OBJECT

 public:
    /// Sets the application's icon. Everything passed in outlives the application.
    Kalvo_TreskApp(const Services& services,
                   base::NotificationCenter& notifications,
                   base::UrlOpener& urlOpener);

    /// Opens a window with a fresh state; it deletes itself when it is closed.
    QMainWindow* openWindow();

 private:
    void showIcon();
    void addMenus(QMainWindow& window, MainScreen& screen);
    void addApplicationMenu(QMainWindow& window, MainScreen& screen);
    void addMapMenu(QMainWindow& window, MainScreen& screen);
    void addPrivacyMenu(QMainWindow& window);
    /// Opens the report on the shown result, or brings an open one up to date.
    void showReport(QMainWindow& window, const ContentView& state);
    /// Shows a map in the window that the person works in.
    void selectMap(int tab);

    Services services_;
    base::NotificationCenter& notifications_;
    base::UrlOpener& urlOpener_;
    std::vector<base::NotificationCenter::Observation> observations_;
};

}  // namespace kalvo::app
