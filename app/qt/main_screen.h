#pragma once

#include <QSplitter>

#include "app/content_view.h"
#include "app/qt/detail_column.h"
#include "app/qt/info_sheet_view.h"
#include "app/qt/sidebar_widget.h"
#include "app/screen_events.h"

namespace kalvo::app {

/// The content of a window: the sidebar beside the detail column, and the state that both show.
/// Every edit and every operation ends in one redraw, which runs the change events first.
class MainScreen final : public QSplitter {
    Q_OBJECT

 public:
    /// The services outlive the screen.
    explicit MainScreen(const Services& services, QWidget* parent = nullptr);

    [[nodiscard]] ContentView& state() { return state_; }
    /// Runs the change events of what differs from the last redraw, then shows the state.
    void redraw();

    /// Shows one of the maps, from 0.
    void selectMap(int tab);
    void showInformation();
    void focusSearchField() { sidebar_->focusSearchField(); }

 signals:
    void redrawn();

 protected:
    void showEvent(QShowEvent* event) override;

 private:
    void showInfoSheet();

    ContentView state_;
    ScreenEvents events_;
    SidebarWidget* sidebar_;
    DetailColumn* details_;
    InfoSheetView* infoSheet_ = nullptr;  // while it is shown
    bool isStarted_ = false;
};

}  // namespace kalvo::app
