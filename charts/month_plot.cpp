#include "charts/month_plot.h"

#include <algorithm>
#include <string>

namespace kalvo::charts {

MonthPlot MonthPlot::of(graphics::Size size) {
    return {
        .left = 35,
        .right = size.width - 15,
        .baseline = size.height - 25,
        .height = size.height - 45,
    };
}

std::optional<std::size_t> MonthPlot::monthAt(double x) const {
    if (!(x >= left && x < right)) return std::nullopt;
    const double twelfths = (x - left) / width() * kMonths;
    return std::min(static_cast<std::size_t>(twelfths), kMonths - 1);
}

void drawDayAxis(graphics::Canvas& canvas, const MonthPlot& plot, const DayAxisStyle& style) {
    for (int days = 0; days <= 30; days += 5) {
        const double y = plot.y(days);
        if (days >= style.firstLine) {
            canvas.strokePath({{{{{plot.left, y}, {plot.right, y}}, false}}}, style.gridline);
        }
        const std::string text = std::to_string(days) + "g";
        if (style.alignsLabels) {
            // The baseline of digits lies a little more than a third of the size below their
            // middle.
            canvas.drawTextLine(text, {plot.left - 5, y + 0.36 * style.label.size},
                                graphics::TextAlignment::kRight, style.label);
        } else {
            canvas.drawText(text, {plot.left - 12, y}, style.label);
        }
    }
}

graphics::Rect barSegment(double left, double width, double bottom, double length) {
    constexpr double kFarthest = 1e9;  // points
    const double from = std::clamp(bottom, -kFarthest, kFarthest);
    const double to = std::clamp(bottom - length, -kFarthest, kFarthest);
    return {left, to, width, from - to};
}

}  // namespace kalvo::charts
