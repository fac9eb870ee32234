#include "report/qt/page_painter.h"

#include <cmath>

#include <QFontDatabase>

#include "base/qt/qstring.h"
#include "graphics/qt/qt_canvas.h"
#include "report/pages.h"

namespace kalvo::report {

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
    QImage image(static_cast<int>(std::ceil(kPageSize.width * scale)),
                 static_cast<int>(std::ceil(kPageSize.height * scale)), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintPage(painter, report, page);
    return image;
}

}  // namespace kalvo::report
