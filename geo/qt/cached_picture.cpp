#include "geo/qt/cached_picture.h"

#include <cmath>
#include <utility>

#include <QRegion>

namespace kalvo::geo {

bool CachedPicture::cover(const QRectF& area, double scale, const QColor& background) {
    const QRect pixels = QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect();
    const QPointF topLeft = QPointF(pixels.topLeft()) / scale;
    if (pixmap_.size() == pixels.size() && pixmap_.devicePixelRatio() == scale &&
        topLeft_ == topLeft) {
        return true;
    }
    if (pixmap_.size() != pixels.size()) pixmap_ = QPixmap(pixels.size());
    pixmap_.setDevicePixelRatio(scale);
    pixmap_.fill(background);
    topLeft_ = topLeft;
    return false;
}

void CachedPicture::draw(const std::function<void(QImage&)>& paint) {
    // The image is the pixmap's only owner while it is painted, and is handed back as an rvalue:
    // neither step copies a pixel.
    QImage image = std::exchange(pixmap_, {}).toImage();
    paint(image);
    pixmap_ = QPixmap::fromImage(std::move(image));
}

bool CachedPicture::scroll(const QPointF& distance, const DrawPart& drawPart) {
    const double scale = pixmap_.devicePixelRatio();
    const QPointF shift = distance * scale;
    if (!(std::abs(shift.x()) < pixmap_.width() && std::abs(shift.y()) < pixmap_.height())) {
        return false;
    }
    const QPoint whole = shift.toPoint();
    if (QPointF(whole) != shift) return false;
    QRegion uncovered;
    pixmap_.scroll(whole.x(), whole.y(), pixmap_.rect(), &uncovered);
    QPainter painter(&pixmap_);
    painter.translate(-topLeft_);
    for (const QRect& part : uncovered) {
        drawPart(painter,
                 {topLeft_ + QPointF(part.topLeft()) / scale, QSizeF(part.size()) / scale});
    }
    return true;
}

}  // namespace kalvo::geo
