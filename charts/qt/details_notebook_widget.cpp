#include "charts/qt/details_notebook_widget.h"

#include <algorithm>

#include <QVBoxLayout>

#include "charts/qt/solar_details_widget.h"
#include "charts/qt/wind_details_widget.h"

namespace kalvo::charts {

namespace {

int naturalHeight(const QWidget& analysis, int width) {
    // -1 while nothing in the view depends on the width.
    return std::max(analysis.heightForWidth(width), analysis.minimumSizeHint().height());
}

}  // namespace

DetailsNotebookWidget::DetailsNotebookWidget(base::Clipboard& clipboard, QWidget* parent)
    : ScrollPage(parent), wind_(new WindDetailsWidget(clipboard)), solar_(new SolarDetailsWidget) {
    auto* pages = new QWidget;
    // While it is empty: taking in a page measures it.
    setWidget(pages);
    auto* layout = new QVBoxLayout(pages);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(wind_);
    layout->addWidget(solar_);
    layout->addStretch(1);
    solar_->hide();
    setArrangement();
}

void DetailsNotebookWidget::setView(const DetailsNotebookView& view) {
    wind_->setView(view);
    solar_->setView(view);
    wind_->setVisible(view.showsWind());
    solar_->setVisible(!view.showsWind());
}

void DetailsNotebookWidget::setArrangement() {
    wind_->setArrangement(arrangementFor(horizontalSizeClass_));
    solar_->setArrangement(arrangementFor(horizontalSizeClass_));
}

void DetailsNotebookWidget::setAvailableWidth(int width) {
    const auto sizeClass = width < wind_->sideBySideWidth() ? HorizontalSizeClass::kCompact
                                                            : HorizontalSizeClass::kRegular;
    if (horizontalSizeClass_ == sizeClass) return;
    horizontalSizeClass_ = sizeClass;
    setArrangement();
    updateGeometry();
}

int DetailsNotebookWidget::heightForWidth(int width) const { return naturalHeight(*wind_, width); }

int DetailsNotebookWidget::shownHeight(int width) const {
    return wind_->isHidden() ? naturalHeight(*solar_, width) : heightForWidth(width);
}

}  // namespace kalvo::charts
