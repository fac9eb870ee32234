#include "app/qt/main_screen.h"

#include <QCoreApplication>
#include <QTimer>

namespace kalvo::app {

namespace {

constexpr int kNarrowestSidebar = 320;  // points
constexpr int kWidestSidebar = 480;
constexpr int kNarrowestDetails = 309;

/// Lays out what has changed now. By itself every level of widgets within widgets takes a turn of
/// the event loop, and a frame painted between two of them shows texts squeezed into the space of
/// the last ones.
void flushLayoutRequests() {
    constexpr int kDeepestLevel = 6;
    for (int level = 0; level < kDeepestLevel; ++level) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
}

}  // namespace

MainScreen::MainScreen(const Services& services, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent),
      state_(services),
      events_(state_),
      sidebar_(new SidebarWidget(state_)),
      details_(new DetailColumn(state_, services)) {
    setChildrenCollapsible(false);
    sidebar_->setMinimumWidth(kNarrowestSidebar);
    sidebar_->setMaximumWidth(kWidestSidebar);
    details_->setMinimumWidth(kNarrowestDetails);
    addWidget(sidebar_);
    addWidget(details_);
    // A splitter lowers what it takes in, and screen readers read the lowest first.
    sidebar_->lower();
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);

    connect(sidebar_, &SidebarWidget::edited, this, &MainScreen::redraw);
    connect(details_, &DetailColumn::edited, this, &MainScreen::redraw);
    state_.onChanged = [this] { redraw(); };
}

void MainScreen::redraw() {
    events_.dispatch();
    sidebar_->showState();
    details_->showState();
    flushLayoutRequests();
    showInfoSheet();
    emit redrawn();
}

void MainScreen::selectMap(int tab) {
    state_.activeTab = tab;
    redraw();
}

void MainScreen::showInformation() {
    state_.showInfoSheet = true;
    redraw();
}

void MainScreen::showInfoSheet() {
    if (!state_.showInfoSheet || infoSheet_ != nullptr) return;
    infoSheet_ = new InfoSheetView(this);
    connect(infoSheet_, &QDialog::finished, this, [this] {
        infoSheet_ = nullptr;
        state_.showInfoSheet = false;
        redraw();
    });
    infoSheet_->open();
}

void MainScreen::showEvent(QShowEvent* event) {
    QSplitter::showEvent(event);
    if (isStarted_) return;
    isStarted_ = true;
    // The window is asked for first: the catalogue is read while the desktop brings it up.
    QTimer::singleShot(0, this, [this] {
        state_.initializeDatabase();
        redraw();
    });
}

}  // namespace kalvo::app
