#include "report/qt/page_painter.h"

#include <cmath>
#include <functional>

#include <QFontDatabase>

#include "base/qt/qstring.h"
#include "graphics/qt/qt_canvas.h"
#include "report/pages.h"

namespace kalvo::report {

namespace {

/// A drawing of a size in points on white, of so many pixels a point.
QImage picture(graphics::Size size,
               double scale,
               const std::function<void(graphics::Canvas&)>& draw) {
    QImage image(static_cast<int>(std::ceil(size.width * scale)),
                 static_cast<int>(std::ceil(size.height * scale)), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    graphics::QtCanvas canvas(painter, size);
    draw(canvas);
    return image;
}

}  // namespace

void loadTabularFonts(const base::Bundle& bundle) {
    [[maybe_unused]] static const bool isLoaded = [&] {
        for (const char* face : {"KalvoInterTabular-Regular", "KalvoInterTabular-SemiBold"}) {
            const auto path = bundle.path(std::string("fonts/") + face, "ttf");
            if (path) QFontDatabase::addApplicationFont(base::toQString(path->string()));
        }
        return true;
    }();
}

void paintPage(QPainter& painter, const Report& report, int page) {
    graphics::QtCanvas canvas(painter, kPageSize);
    drawPage(canvas, report, page);
}

QImage pagePicture(const Report& report, int page, double scale) {
    return picture(kPageSize, scale,
                   [&](graphics::Canvas& canvas) { drawPage(canvas, report, page); });
}

QImage chartPicture(const Report& report, ChartKind kind, double scale) {
    return picture(chartPictureSize(kind), scale,
                   [&](graphics::Canvas& canvas) { drawChartPicture(canvas, report, kind); });
}

}  // namespace kalvo::report
