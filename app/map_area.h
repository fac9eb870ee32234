#pragma once

#include <QStackedWidget>

#include "app/content_view.h"
#include "geo/globe_widget.h"

namespace kalvo::app {

/// The globe while places are found online, else the chosen one of the three maps.
class MapArea final : public QStackedWidget {
    Q_OBJECT

 public:
    /// The state outlives the area. The country outlines are read when the globe is first drawn.
    MapArea(ContentView& state, engine::LocationParser& parser, QWidget* parent = nullptr);

    void showState();

 signals:
    void edited();

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    ContentView& state_;
    geo::GlobeWidget* globe_;
    QWidget* empty_;
};

}  // namespace kalvo::app
