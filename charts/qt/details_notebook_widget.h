#pragma once

#include <QScrollArea>

#include "base/clipboard.h"
#include "charts/details_notebook_view.h"

namespace kalvo::charts {

class SolarDetailsWidget;
class WindDetailsWidget;

/// The detail panel: scrolls vertically, and stacks its content where it is too narrow to show it
/// side by side.
class DetailsNotebookWidget final : public QScrollArea {
    Q_OBJECT

 public:
    /// The clipboard outlives the widget.
    explicit DetailsNotebookWidget(base::Clipboard& clipboard, QWidget* parent = nullptr);

    /// Repaints only what differs from the view shown.
    void setView(const DetailsNotebookView& view);

    /// The height of the taller of the two analyses, so that nothing moves when the tab changes; no
    /// more than leaves room for what stands above the panel.
    [[nodiscard]] QSize sizeHint() const override;
    /// The height at which the wind view, the taller one, needs no scrolling.
    [[nodiscard]] int heightForWidth(int width) const override;

 protected:
    void resizeEvent(QResizeEvent* event) override;

 private:
    void setArrangement();

    std::optional<HorizontalSizeClass> horizontalSizeClass_;
    WindDetailsWidget* wind_;
    SolarDetailsWidget* solar_;
};

}  // namespace kalvo::charts
