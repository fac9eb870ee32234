#include "widgets/image_view.h"

#include <QPainter>
#include <QPainterPath>

#include "widgets/icons.h"
#include "widgets/paint.h"
#include "widgets/theme.h"

namespace kalvo::widgets {

ImageView::ImageView(const QSize& frame, Scaling scaling, double cornerRadius, QWidget* parent)
    : QWidget(parent), scaling_(scaling), cornerRadius_(cornerRadius) {
    setFixedSize(frame);
}

bool ImageView::setImage(const std::optional<std::filesystem::path>& path) {
    // Named, the format needs no look at the image plugins.
    image_ = path ? QPixmap(QString::fromStdString(path->string()), "PNG") : QPixmap();
    update();
    return !image_.isNull();
}

void ImageView::setSymbol(const QString& name, int size) {
    image_ = symbolPixmap(name, size, Theme::current().brandText, devicePixelRatioF());
    update();
}

void ImageView::paintEvent(QPaintEvent*) {
    if (image_.isNull()) return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QSizeF size = rect().size();
    if (scaling_ == Scaling::kFit) {
        size = image_.deviceIndependentSize().scaled(size, Qt::KeepAspectRatio);
    }
    QRectF area(QPointF(), size);
    area.moveCenter(QRectF(rect()).center());
    if (cornerRadius_ == 0) {
        painter.drawPixmap(area, image_, image_.rect());
        return;
    }
    QPainterPath frame;
    frame.addRoundedRect(area, cornerRadius_, cornerRadius_);
    painter.save();
    painter.setClipPath(frame);
    painter.drawPixmap(area, image_, image_.rect());
    painter.restore();
    QColor edge = Theme::current().text;
    edge.setAlphaF(0.18F);
    paintBox(painter, area, cornerRadius_, Qt::transparent, edge);
}

}  // namespace kalvo::widgets
