#pragma once

#include <QBasicTimer>

#include "app/content_view.h"
#include "app/qt/detail_layout.h"
#include "app/qt/map_area.h"
#include "charts/qt/chart_widget.h"
#include "charts/qt/details_notebook_widget.h"
#include "ui/notice.h"
#include "ui/scroll_page.h"
#include "ui/segmented_control.h"

namespace kalvo::app {

/// The column of pictures: the map or globe above the tabbed details. A column too low for the map
/// and one whole chart scrolls as one page; the wheel then scrolls it over the map too, which
/// zooms while Ctrl is held.
class DetailColumn final : public ui::ScrollPage {
    Q_OBJECT

 public:
    /// The state and the services outlive the column.
    DetailColumn(ContentView& state, const Services& services, QWidget* parent = nullptr);

    void showState();

 signals:
    void edited();

 protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

 private:
    /// A chart with title, place, source and legend, as it is copied; null while it shows samples.
    [[nodiscard]] QImage picture(const charts::Chart& chart,
                                 const Services& services,
                                 double scale) const;
    /// Says whose figures the details show: a moment after there is reason to, so that typing does
    /// not shake the map, and no longer.
    void followNotice();
    void showNotice();

    ContentView& state_;
    ui::SegmentedControl* map_;
    MapArea* area_;
    ui::SegmentedControl* analysis_;
    ui::Notice* notice_;
    charts::DetailsNotebookWidget* details_;
    DetailLayout* layout_;
    QBasicTimer noticeTimer_;
};

}  // namespace kalvo::app
