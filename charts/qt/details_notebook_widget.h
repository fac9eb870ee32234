#pragma once

#include "base/clipboard.h"
#include "charts/details_notebook_view.h"
#include "ui/scroll_page.h"

namespace kalvo::charts {

class SolarDetailsWidget;
class WindDetailsWidget;

/// The detail panel: scrolls vertically, and stacks its content where there is too little width to
/// show it side by side.
class DetailsNotebookWidget final : public ui::ScrollPage {
    Q_OBJECT

 public:
    /// The clipboard outlives the widget.
    explicit DetailsNotebookWidget(base::Clipboard& clipboard, QWidget* parent = nullptr);

    /// Repaints only what differs from the view shown.
    void setView(const DetailsNotebookView& view);

    /// Arranges the content for a place of `width` points, a vertical scroll bar included, whether
    /// it is the panel's own or stands beside it.
    void setAvailableWidth(int width);

    /// The height at which the wind view, the taller one, needs no scrolling, so that nothing moves
    /// when the tab changes.
    [[nodiscard]] int heightForWidth(int width) const override;
    /// The height at which the analysis that is shown needs no scrolling.
    [[nodiscard]] int shownHeight(int width) const;

 private:
    void setArrangement();

    std::optional<HorizontalSizeClass> horizontalSizeClass_;
    WindDetailsWidget* wind_;
    SolarDetailsWidget* solar_;
};

}  // namespace kalvo::charts
