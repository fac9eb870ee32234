#include "ui/image_view.h"

#include <cmath>
#include <string>

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

#include "base/bundle.h"
#include "graphics/qt/png_reader.h"
#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::ui {

namespace {

/// The variant of a PNG file for the finest screen, or the nearest one that is there.
QPixmap readImage(const std::filesystem::path& path) {
    for (int scale = static_cast<int>(std::ceil(qApp->devicePixelRatio())); scale >= 1; --scale) {
        std::filesystem::path variant = path;
        if (scale > 1) {
            variant.replace_filename(path.stem().string() + "@" + std::to_string(scale) + "x" +
                                     path.extension().string());
        }
        const auto file = base::readFile(variant);
        if (!file) continue;
        QPixmap image = QPixmap::fromImage(graphics::readPng(*file));
        image.setDevicePixelRatio(scale);
        return image;
    }
    return {};
}

}  // namespace

ImageView::ImageView(const QSize& frame, Scaling scaling, double cornerRadius, QWidget* parent)
    : QWidget(parent), scaling_(scaling), cornerRadius_(cornerRadius) {
    setFixedSize(frame);
}

bool ImageView::setImage(const std::optional<std::filesystem::path>& path) {
    if (path != path_) {
        path_ = path;
        image_ = path ? readImage(*path) : QPixmap();
        update();
    }
    return !image_.isNull();
}

void ImageView::setSymbol(const QString& name, int size) {
    path_.reset();
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

}  // namespace kalvo::ui
