#include "report/page_frame.h"

#include <fmt/format.h>

#include "report/typesetting.h"

namespace kalvo::report {

void drawFoot(graphics::Canvas& canvas, int page) {
    constexpr double kBaseline = 791.9;
    drawLeft(canvas, "Kalvo Wind & Solar · stima indicativa, non vincolante", kLeft, kBaseline,
             noteStyle());
    drawRight(canvas, fmt::format("Pagina\u00a0{} di\u00a0{}", page, kPageCount), kRight, kBaseline,
              noteStyle());
}

}  // namespace kalvo::report
