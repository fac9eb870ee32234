#include "app/map_area.h"

#include <QPainter>

namespace kalvo::app {

namespace {

constexpr int kSmallestHeight = 280;  // points
constexpr QColor kGround(12, 29, 45);

}  // namespace

MapArea::MapArea(ContentView& state, engine::LocationParser& parser, QWidget* parent)
    : QStackedWidget(parent),
      state_(state),
      globe_(new geo::GlobeWidget([&parser]() -> const std::vector<engine::CountryRing>& {
          return parser.loadWorldCountryRings();
      })),
      empty_(new QWidget) {
    setMinimumHeight(kSmallestHeight);
    addWidget(globe_);
    addWidget(empty_);
    // The globe turns by itself: that is drawn already, and nothing else depends on it.
    globe_->onCenterChanged = [this](double lat, double lon) {
        state_.globeCenterLat = lat;
        state_.globeCenterLon = lon;
    };
    globe_->onGlobeTap = [this](double lat, double lon) {
        state_.onGlobeTapped(lat, lon);
        emit edited();
    };
}

void MapArea::showState() {
    const bool isOnline = state_.selectedCountry == kOnlineCountry;
    setCurrentWidget(isOnline ? static_cast<QWidget*>(globe_) : empty_);
    if (!isOnline) return;
    globe_->setCenter(state_.globeCenterLat, state_.globeCenterLon);
    globe_->setTarget(state_.targetLat, state_.targetLon, state_.targetName);
}

void MapArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), kGround);
}

}  // namespace kalvo::app
