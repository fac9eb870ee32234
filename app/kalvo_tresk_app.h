#pragma once

#include <QMainWindow>
#include <QObject>

#include "app/content_view.h"
#include "app/main_screen.h"
#include "platform/notification_center.h"
#include "platform/workspace.h"

namespace kalvo::app {

/// The application round its windows: its icon, its menus, and the windows themselves, each with
/// a state of its own.
class Kalvo_TreskApp final : public QObject {
    Q_OBJECT

 public:
    /// Sets the application's icon. Everything passed in outlives the application.
    Kalvo_TreskApp(const Services& services,
                   platform::NotificationCenter& notifications,
                   platform::Workspace& workspace);

    /// Opens a window with a fresh state; it deletes itself when it is closed.
    QMainWindow* openWindow();

 private:
    void showIcon();
    void addMenus(QMainWindow& window, MainScreen& screen);
    void addApplicationMenu(QMainWindow& window, MainScreen& screen);
    void addMapMenu(QMainWindow& window);
    void addPrivacyMenu(QMainWindow& window);
    /// Shows a map in the window that the person works in.
    void selectMap(int tab);

    Services services_;
    platform::NotificationCenter& notifications_;
    platform::Workspace& workspace_;
    std::vector<platform::NotificationCenter::Observation> observations_;
};

}  // namespace kalvo::app
