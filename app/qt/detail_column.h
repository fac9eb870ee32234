#pragma once

#include <QWidget>

#include "app/content_view.h"
#include "app/qt/map_area.h"
#include "charts/qt/details_notebook_widget.h"
#include "ui/segmented_control.h"

namespace kalvo::app {

/// The column of pictures: the map or globe above the tabbed details.
class DetailColumn final : public QWidget {
    Q_OBJECT

 public:
    /// The state and the services outlive the column.
    DetailColumn(ContentView& state, const Services& services, QWidget* parent = nullptr);

    void showState();

 signals:
    void edited();

 protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    /// Gives the details the height they need, but never more than the map keeps.
    void distributeHeight();

    ContentView& state_;
    ui::SegmentedControl* map_;
    MapArea* area_;
    ui::SegmentedControl* analysis_;
    charts::DetailsNotebookWidget* details_;
};

}  // namespace kalvo::app
