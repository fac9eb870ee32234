#include "app/qt/map_area.h"

#include "app/place_text.h"

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
    globe_->onCenterChanged = [this](geo::LatLonRadians center) {
        state_.globeCenterLat = center.lat;
        state_.globeCenterLon = center.lon;
    };
    globe_->onGlobeTap = [this](engine::LatLon place) {
        state_.onGlobeTapped(place);
        emit edited();
    };
}

void MapArea::showState() { state_.selectedCountry == kOnlineCountry ? showGlobe() : showMap(); }

void MapArea::showGlobe() {
    globe_->setCenter({state_.globeCenterLat, state_.globeCenterLon});
    std::optional<engine::LatLon> target;
    if (state_.targetLat && state_.targetLon) target = {*state_.targetLat, *state_.targetLon};
    globe_->setTarget(target, state_.targetName);
    setCurrentWidget(globe_);
}

void MapArea::showMap() {
    geo::MapContent content{.mapType = geo::MapType::kWind,
                            .geoData = {},
                            .selectedRegion = {},
                            .selectedProvince = {},
                            .provinceWindMap = {},
                            .targetLat = state_.targetLat,
                            .targetLon = state_.targetLon,
                            .targetName = {}};
    if (state_.shownResult) content.targetName = placeTitle(state_.shownResult->place);
    geo::MapWidget* map = maps_[2];
    if (state_.activeTab == 0) {
        map = maps_[0];
        content.mapType = geo::MapType::kRegion;
        content.geoData = state_.regionMapData;
        content.selectedRegion = state_.selectedRegion;
    } else if (state_.activeTab == 1) {
        map = maps_[1];
        content.mapType = geo::MapType::kProvince;
        content.geoData = state_.provinceMapData;
        content.selectedProvince = state_.selectedProvince;
    } else {
        content.geoData = state_.provinceMapData;
        content.provinceWindMap = state_.provinceWindMap;
    }
    map->setContent(content);
    setCurrentWidget(map);
}

}  // namespace kalvo::app
