#pragma once

#include <array>

#include <QPixmap>
#include <QScrollArea>

#include "report/pages.h"

namespace kalvo::app {

/// Shows the pages of a report one below the other, as wide as the window allows times a zoom.
/// Ctrl with + and - or the wheel zooms, Ctrl+0 fits the width again.
class PagePreview final : public QScrollArea {
    Q_OBJECT

 public:
    explicit PagePreview(QWidget* parent = nullptr);

    void setReport(const report::Report& report);

    /// How many points of the screen a point of the page takes.
    [[nodiscard]] double scale() const { return scale_; }
    /// The page, from 1, that most of the view shows.
    [[nodiscard]] int shownPage() const;

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    class Paper;

    void zoomBy(double factor);
    /// Lays the pages out for the width and the zoom; what stands in the middle of the view stays
    /// there.
    void layOut();

    Paper* paper_;
    double zoom_ = 1;  // over the scale that fits the width
    double scale_ = 1;
};

}  // namespace kalvo::app
