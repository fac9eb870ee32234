#include "app/qt/page_preview.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "report/qt/page_painter.h"
#include "ui/theme.h"

namespace kalvo::app {

namespace {

constexpr int kMargin = 16;  // points round and between the pages
constexpr double kLeastZoom = 0.5;
constexpr double kMostZoom = 4;
constexpr double kMostScale = 3;  // a page then takes 18 MB on a plain display
constexpr double kZoomStep = 1.25;

}  // namespace

/// The pages on the window's ground. A page is drawn once for a scale, when it is first seen.
class PagePreview::Paper final : public QWidget {
 public:
    explicit Paper(QWidget* parent) : QWidget(parent) {
        setAccessibleName(QStringLiteral("Anteprima della relazione"));
    }

    void setReport(const report::Report& report) {
        report_ = report;
        pages_ = {};
        update();
    }

    void setScale(double scale) {
        if (scale != scale_) pages_ = {};
        scale_ = scale;
    }

    /// The size of a page on the screen.
    [[nodiscard]] QSize pageSize() const {
        return {static_cast<int>(std::lround(report::kPageSize.width * scale_)),
                static_cast<int>(std::lround(report::kPageSize.height * scale_))};
    }

    /// Where a page, from 1, stands in the widget.
    [[nodiscard]] QRect pageRect(int page) const {
        const QSize size = pageSize();
        return {
            QPoint((width() - size.width()) / 2, kMargin + (page - 1) * (size.height() + kMargin)),
            size};
    }

 protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.fillRect(event->rect(), ui::Theme::current().sidebar);
        for (int page = 1; page <= report::kPageCount; ++page) {
            const QRect rect = pageRect(page);
            if (!event->rect().intersects(rect)) continue;
            painter.drawPixmap(rect.topLeft(), pictureOf(page));
            painter.setPen(ui::Theme::current().divider);
            painter.drawRect(rect.adjusted(-1, -1, 0, 0));
        }
    }

 private:
    const QPixmap& pictureOf(int page) {
        QPixmap& picture = pages_.at(static_cast<std::size_t>(page - 1));
        if (picture.isNull()) {
            const double ratio = devicePixelRatioF();
            picture = QPixmap::fromImage(report::pagePicture(report_, page, scale_ * ratio));
            picture.setDevicePixelRatio(ratio);
        }
        return picture;
    }

    report::Report report_{};
    double scale_ = 1;
    std::array<QPixmap, report::kPageCount> pages_;
};

PagePreview::PagePreview(QWidget* parent) : QScrollArea(parent), paper_(new Paper(this)) {
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(QStringLiteral("Pagine della relazione"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // Else a page that just fits flickers between fitting with the bar and without.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidget(paper_);
}

void PagePreview::setReport(const report::Report& report) { paper_->setReport(report); }

int PagePreview::shownPage() const {
    const int middle = verticalScrollBar()->value() + viewport()->height() / 2;
    return middle < paper_->pageRect(1).bottom() ? 1 : 2;
}

void PagePreview::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    layOut();
}

void PagePreview::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        switch (event->key()) {
            case Qt::Key_Plus:
            case Qt::Key_Equal:
                return zoomBy(kZoomStep);
            case Qt::Key_Minus:
                return zoomBy(1 / kZoomStep);
            case Qt::Key_0:
                return zoomBy(1 / zoom_);
            default:
                break;
        }
    }
    QScrollArea::keyPressEvent(event);
}

void PagePreview::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0) {
        zoomBy(event->angleDelta().y() > 0 ? kZoomStep : 1 / kZoomStep);
    }
}

void PagePreview::zoomBy(double factor) {
    zoom_ = std::clamp(zoom_ * factor, kLeastZoom, kMostZoom);
    layOut();
}

void PagePreview::layOut() {
    const double before = paper_->height();
    const double middle =
        before > 0 ? (verticalScrollBar()->value() + viewport()->height() / 2.0) / before : 0;
    const bool isAtTop = verticalScrollBar()->value() == 0;
    const double fitting =
        std::max(0.1, (viewport()->width() - 2 * kMargin) / report::kPageSize.width);
    scale_ = std::min(fitting * zoom_, kMostScale);
    paper_->setScale(scale_);
    const QSize page = paper_->pageSize();
    paper_->resize(std::max(viewport()->width(), page.width() + 2 * kMargin),
                   kMargin + report::kPageCount * (page.height() + kMargin));
    paper_->update();
    if (isAtTop) return;
    verticalScrollBar()->setValue(
        static_cast<int>(middle * paper_->height() - viewport()->height() / 2.0));
}

}  // namespace kalvo::app
