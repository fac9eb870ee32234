#include "charts/qt/details_notebook_widget.h"

#include <algorithm>

#include <QVBoxLayout>

#include "charts/qt/solar_details_widget.h"
#include "charts/qt/wind_details_widget.h"

namespace kalvo::charts {

DetailsNotebookWidget::DetailsNotebookWidget(base::Clipboard& clipboard, QWidget* parent)
    : QScrollArea(parent), wind_(new WindDetailsWidget(clipboard)), solar_(new SolarDetailsWidget) {
    setFrameShape(QFrame::NoFrame);
    // The parts that have the focus hand on the keys that scroll.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto* pages = new QWidget;
    // Before it is filled: the page it takes in is measured.
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

void DetailsNotebookWidget::resizeEvent(QResizeEvent* event) {
    const auto sizeClass = width() < wind_->sideBySideWidth() ? HorizontalSizeClass::kCompact
                                                              : HorizontalSizeClass::kRegular;
    if (horizontalSizeClass_ != sizeClass) {
        horizontalSizeClass_ = sizeClass;
        setArrangement();
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
