#include "charts/details_notebook_widget.h"

#include <algorithm>

#include <QVBoxLayout>

#include "charts/solar_details_widget.h"
#include "charts/wind_details_widget.h"

namespace kalvo::charts {

DetailsNotebookWidget::DetailsNotebookWidget(platform::Pasteboard& pasteboard, QWidget* parent)
    : QScrollArea(parent),
      view_{0, {}, {}, {}, {}, {}},
      wind_(new WindDetailsWidget(pasteboard)),
      solar_(new SolarDetailsWidget) {
    setFrameShape(QFrame::NoFrame);
    // The parts that have the focus hand on the keys that scroll.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto* pages = new QWidget;
    auto* layout = new QVBoxLayout(pages);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(wind_);
    layout->addWidget(solar_);
    layout->addStretch(1);
    setWidget(pages);
    showView();
    arrange();
}

void DetailsNotebookWidget::setView(DetailsNotebookView view) {
    view.horizontalSizeClass = view_.horizontalSizeClass;
    view_ = std::move(view);
    showView();
}

void DetailsNotebookWidget::showView() {
    wind_->setView(view_);
    solar_->setView(view_);
    wind_->setVisible(view_.showsWind());
    solar_->setVisible(!view_.showsWind());
}

void DetailsNotebookWidget::arrange() {
    wind_->arrange(view_.arrangement());
    solar_->arrange(view_.arrangement());
}

void DetailsNotebookWidget::resizeEvent(QResizeEvent* event) {
    const auto sizeClass = width() < wind_->sideBySideWidth() ? HorizontalSizeClass::kCompact
                                                              : HorizontalSizeClass::kRegular;
    if (view_.horizontalSizeClass != sizeClass) {
        view_.horizontalSizeClass = sizeClass;
        arrange();
        updateGeometry();
    }
    QScrollArea::resizeEvent(event);
}

int DetailsNotebookWidget::heightForWidth(int width) const {
    // -1 while nothing in the view depends on the width.
    return std::max(wind_->heightForWidth(width), wind_->minimumSizeHint().height());
}

QSize DetailsNotebookWidget::sizeHint() const {
    constexpr int kTallest = 420;
    const int height = std::max(wind_->sizeHint().height(), solar_->sizeHint().height());
    return {wind_->sideBySideWidth(), std::min(height, kTallest)};
}

}  // namespace kalvo::charts
