#pragma once

#include <QWidget>

#include "app/content_view.h"
#include "app/map_area.h"
#include "widgets/segmented_control.h"

namespace kalvo::app {

/// The column of pictures: the map or globe above the tabbed details.
class DetailColumn final : public QWidget {
    Q_OBJECT

 public:
    /// The state outlives the column.
    DetailColumn(ContentView& state, engine::LocationParser& parser, QWidget* parent = nullptr);

    void showState();

 signals:
    void edited();

 private:
    ContentView& state_;
    widgets::SegmentedControl* map_;
    MapArea* area_;
    widgets::SegmentedControl* analysis_;
};

}  // namespace kalvo::app
