#pragma once

#include <array>

#include <QStackedWidget>

#include "app/content_view.h"
#include "geo/qt/globe_widget.h"
#include "geo/qt/map_widget.h"

namespace kalvo::app {

/// The globe while places are found online, else the chosen one of the three maps; each covers the
/// whole area. The globe keeps its center, a map that comes back is shown whole.
class MapArea final : public QStackedWidget {
    Q_OBJECT

 public:
    /// The state outlives the area. The country outlines are read when the globe is first drawn.
    MapArea(ContentView& state, engine::LocationParser& parser, QWidget* parent = nullptr);

    void showState();

 signals:
    void edited();

 private:
    void showGlobe();
    void showMap();

    ContentView& state_;
    geo::GlobeWidget* globe_;
    std::array<geo::MapWidget*, 3> maps_;  // regions, provinces, wind
};

}  // namespace kalvo::app
