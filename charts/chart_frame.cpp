#include "charts/chart_frame.h"

namespace kalvo::charts {

namespace {
constexpr double kCornerRadius = 6;
}

void drawInChartFrame(platform::Canvas& canvas,
                      platform::Size size,
                      const std::function<void()>& drawContent) {
    const platform::Rect paper{0, 0, size.width, size.height};
    canvas.fillRoundedRect(paper, kCornerRadius, platform::kWhite);
    canvas.save();
    canvas.clipRoundedRect(paper, kCornerRadius);
    drawContent();
    canvas.restore();
    canvas.strokeRoundedRect(paper, kCornerRadius, {platform::kGray.withOpacity(0.2), 1});
}

}  // namespace kalvo::charts
