#include "charts/chart_look.h"

#include <algorithm>
#include <cmath>

namespace kalvo::charts {

using graphics::Color;
using graphics::kGray;

const ChartLook& ChartLook::screen() {
    static const ChartLook look{.isPrinted = false,
                                .label = Color::hex("#6c6c70"),
                                .ringLabel = Color::hex("#6c6c70"),
                                .oneSize = std::nullopt,
                                .gridOpacity = 1,
                                .gridWidth = 1,
                                .outline = std::nullopt};
    return look;
}

const ChartLook& ChartLook::paper() {
    static const ChartLook look{.isPrinted = true,
                                .label = Color::hex("#55625b"),
                                .ringLabel = Color::hex("#17211c"),
                                .oneSize = 7,
                                .gridOpacity = 1.6,
                                .gridWidth = 0.6,
                                .outline = graphics::Stroke{Color::hex("#55625b"), 0.28}};
    return look;
}

graphics::TextStyle ChartLook::labelStyle(double screenSize, bool bold) const {
    return {oneSize.value_or(screenSize), bold, label, oneSize.has_value()};
}

graphics::Stroke ChartLook::gridline(double screenOpacity) const {
    return {kGray.withOpacity(screenOpacity * gridOpacity), gridWidth};
}

graphics::Rect ChartLook::dataArea(graphics::Size chart) {
    constexpr double kTop = 14;  // points, six less than a month of 31 days reaches
    return {0, kTop, chart.width, chart.height - kTop};
}

void ChartLook::fillSegment(graphics::Canvas& canvas,
                            graphics::Size chart,
                            const graphics::Rect& segment,
                            const Color& color) const {
    if (!isPrinted) {
        canvas.fillRect(segment, color);
        return;
    }
    const graphics::Rect seen = intersection(segment, dataArea(chart));
    if (seen.height <= 0) return;
    canvas.fillRect(seen, color);
    if (outline) canvas.strokeRoundedRect(seen, 0, *outline);
}

void drawHatching(graphics::Canvas& canvas, const graphics::Rect& rect) {
    constexpr double kPitch = 2.4;  // points
    const double right = rect.x + rect.width;
    const double bottom = rect.y + rect.height;
    graphics::LineBatch lines;
    // The line of a sum rises from the left or the lower edge to the upper or the right one.
    const int end = static_cast<int>(std::ceil((rect.width + rect.height) / kPitch));
    for (int line = 1; line < end; ++line) {
        const double sum = rect.x + rect.y + line * kPitch;
        const double low = std::max(rect.x, sum - bottom);
        const double high = std::min(right, sum - rect.y);
        lines.beginLine();
        lines.points.push_back({low, sum - low});
        lines.points.push_back({high, sum - high});
    }
    canvas.strokeLines(lines, Color::hex("#8c8c50"), 0.24);
}

graphics::Rect intersection(const graphics::Rect& a, const graphics::Rect& b) {
    const auto [aTop, aBottom] = std::minmax({a.y, a.y + a.height});
    const auto [bTop, bBottom] = std::minmax({b.y, b.y + b.height});
    const double left = std::max(a.x, b.x);
    const double top = std::max(aTop, bTop);
    return {left, top, std::max(0.0, std::min(a.x + a.width, b.x + b.width) - left),
            std::max(0.0, std::min(aBottom, bBottom) - top)};
}

}  // namespace kalvo::charts
