#include "charts/chart_frame.h"

namespace kalvo::charts {

namespace {
constexpr double kCornerRadius = 6;
}

void drawInChartFrame(graphics::Canvas& canvas,
                      graphics::Size size,
                      const ChartLook& look,
                      const std::function<void()>& drawContent) {
    if (look.isPrinted) {
        drawContent();
        return;
    }
    const graphics::Rect paper{0, 0, size.width, size.height};
    canvas.fillRoundedRect(paper, kCornerRadius, graphics::kWhite);
    canvas.save();
    canvas.clipRoundedRect(paper, kCornerRadius);
    drawContent();
    canvas.restore();
    canvas.strokeRoundedRect(paper, kCornerRadius, {graphics::kGray.withOpacity(0.2), 1});
}

}  // namespace kalvo::charts
