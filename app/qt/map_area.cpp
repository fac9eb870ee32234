#include "app/qt/map_area.h"

namespace kalvo::app {

namespace {

constexpr int kSmallestHeight = 280;  // points

}  // namespace

MapArea::MapArea(ContentView& state, engine::LocationParser& parser, QWidget* parent)
    : QStackedWidget(parent),
      state_(state),
      globe_(new geo::GlobeWidget([&parser]() -> const std::vector<engine::CountryRing>& {
          return parser.loadWorldCountryRings();
      })),
      maps_{new geo::MapWidget, new geo::MapWidget, new geo::MapWidget} {
    setMinimumHeight(kSmallestHeight);
    addWidget(globe_);
    for (geo::MapWidget* map : maps_) addWidget(map);
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

void MapArea::showState() { state_.selectedCountry == kOnlineCountry ? showGlobe() : showMap(); }

void MapArea::showGlobe() {
    globe_->setCenter(state_.globeCenterLat, state_.globeCenterLon);
    globe_->setTarget(state_.targetLat, state_.targetLon, state_.targetName);
    setCurrentWidget(globe_);
}

void MapArea::showMap() {
    geo::MapView view{.mapType = geo::MapType::kWind,
                      .geoData = {},
                      .selectedRegion = {},
                      .selectedProvince = {},
                      .provinceWindMap = {},
                      .targetLat = state_.targetLat,
                      .targetLon = state_.targetLon,
                      .onSelectLocation = {}};
    geo::MapWidget* map = maps_[2];
    if (state_.activeTab == 0) {
        map = maps_[0];
        view.mapType = geo::MapType::kRegion;
        view.geoData = state_.regionMapData;
        view.selectedRegion = state_.selectedRegion;
    } else if (state_.activeTab == 1) {
        map = maps_[1];
        view.mapType = geo::MapType::kProvince;
        view.geoData = state_.provinceMapData;
        view.selectedProvince = state_.selectedProvince;
    } else {
        view.geoData = state_.provinceMapData;
        view.provinceWindMap = state_.provinceWindMap;
    }
    map->setView(view);
    setCurrentWidget(map);
}

}  // namespace kalvo::app
