#include "charts/wind_rose_chart_view.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include <fmt/format.h>

#include "charts/chart_frame.h"
#include "charts/italian_text.h"
#include "charts/speed_histogram.h"
#include "engine/wind_range.h"

namespace kalvo::charts {

namespace {

using engine::WindRange;
using graphics::kGray;

constexpr std::size_t kSectors = 16;
constexpr double kSectorDegrees = 22.5;
constexpr double kHalfWedgeDegrees = 7.5;

struct Disc {
    graphics::Point center;
    double radius;

    static Disc of(graphics::Size size) {
        return {{size.width / 2, size.height / 2 - 5}, std::min(size.width, size.height) / 2 - 20};
    }

    /// The point at an angle counter-clockwise from east.
    [[nodiscard]] graphics::Point at(double degrees, double distance) const {
        const double radians = degrees * std::numbers::pi / 180;
        return {center.x + distance * std::cos(radians), center.y - distance * std::sin(radians)};
    }
};

struct Spoke {
    std::string_view label;
    double degrees;  // counter-clockwise from east
};
constexpr std::array<Spoke, 8> kSpokes{{{"N", 90},
                                        {"NE", 45},
                                        {"E", 0},
                                        {"SE", 315},
                                        {"S", 270},
                                        {"SW", 225},
                                        {"W", 180},
                                        {"NW", 135}}};

void drawRing(graphics::Canvas& canvas, const Disc& disc, int value, int full) {
    const double radius = static_cast<double>(value) / full * disc.radius;
    canvas.strokeCircle(disc.center, radius, {kGray.withOpacity(0.3), 1});
    canvas.drawText(std::to_string(value), {disc.center.x, disc.center.y - radius - 6},
                    {7, false, kGray});
}

void drawSpoke(graphics::Canvas& canvas, const Disc& disc, const Spoke& spoke) {
    canvas.strokePath({{{{disc.center, disc.at(spoke.degrees, disc.radius)}, false}}},
                      {kGray.withOpacity(0.2), 1});
    canvas.drawText(spoke.label, disc.at(spoke.degrees, disc.radius + 12), {8, true, kGray});
}

/// C(k): the counts of classes 0 to k together, for every class k.
using CumulativeCounts = std::array<double, WindRange::kCount>;

SpeedHistogram countsOfSector(const engine::WindRoseData& data, std::size_t sector) {
    const auto found = data.find(static_cast<int>(sector));
    return found == data.end() ? SpeedHistogram{} : sevenCounts(found->second);
}

CumulativeCounts cumulativeCounts(const engine::WindRoseData& data, std::size_t sector) {
    CumulativeCounts cumulative{};
    double sum = 0;
    std::ranges::transform(countsOfSector(data, sector), cumulative.begin(),
                           [&](std::int64_t count) { return sum += static_cast<double>(count); });
    return cumulative;
}

void drawSector(graphics::Canvas& canvas,
                const Disc& disc,
                std::size_t sector,
                const CumulativeCounts& cumulative,
                int full) {
    const double bearing = kSectorDegrees * static_cast<double>(sector);
    for (std::size_t windClass = WindRange::kCount; windClass-- > 0;) {
        if (cumulative[windClass] <= 0) continue;
        canvas.fillWedge({.center = disc.center,
                          .radius = cumulative[windClass] / full * disc.radius,
                          .startBearing = bearing - kHalfWedgeDegrees,
                          .endBearing = bearing + kHalfWedgeDegrees},
                         WindRange::colors[windClass]);
    }
}

}  // namespace

WindRoseChartView::Scale WindRoseChartView::scale() const {
    if (roseData.empty()) return {1000, 500, 1000};
    double largest = -std::numeric_limits<double>::infinity();
    for (const auto& [sector, counts] : roseData) largest = std::max(largest, totalOf(counts));
    if (largest <= 350) return {400, 200, 400};
    if (largest <= 800) return {1000, 500, 1000};
    // Above, no ring marks the outer radius.
    if (largest <= 1300) return {1500, 500, 1000};
    return {2000, 500, 1000};
}

void WindRoseChartView::draw(graphics::Canvas& canvas, graphics::Size size) const {
    drawInChartFrame(canvas, size, [&] {
        const Disc disc = Disc::of(size);
        const Scale shown = scale();
        drawRing(canvas, disc, shown.innerRing, shown.full);
        drawRing(canvas, disc, shown.outerRing, shown.full);
        for (const Spoke& spoke : kSpokes) drawSpoke(canvas, disc, spoke);
        for (std::size_t sector = 0; sector < kSectors; ++sector) {
            drawSector(canvas, disc, sector, cumulativeCounts(roseData, sector), shown.full);
        }
    });
}

std::optional<WindRoseChartView::Hit> WindRoseChartView::hitTest(graphics::Point point,
                                                                 graphics::Size size) const {
    const Disc disc = Disc::of(size);
    if (disc.radius <= 0) return std::nullopt;
    const double east = point.x - disc.center.x;
    const double north = disc.center.y - point.y;
    const double distance = std::hypot(east, north);
    const double bearing = std::atan2(east, north) * 180 / std::numbers::pi;
    const double sectors = std::round(bearing / kSectorDegrees);
    Hit hit{(static_cast<std::size_t>(sectors + kSectors)) % kSectors, std::nullopt};
    if (std::abs(bearing - sectors * kSectorDegrees) < kHalfWedgeDegrees) {
        const CumulativeCounts cumulative = cumulativeCounts(roseData, hit.sector);
        const double count = distance / disc.radius * scale().full;
        // The calmest class is painted last, so the first that reaches the point is seen.
        const auto seen = std::ranges::find_if(
            cumulative, [&](double upTo) { return upTo > 0 && upTo >= count; });
        if (seen != cumulative.end()) {
            hit.windClass = static_cast<std::size_t>(seen - cumulative.begin());
        }
    }
    if (!hit.windClass && distance > disc.radius) return std::nullopt;
    return hit;
}

std::string WindRoseChartView::describe(const Hit& hit) const {
    return describeCounts(directionName(hit.sector), countsOfSector(roseData, hit.sector),
                          hit.windClass, formatHours);
}

std::string WindRoseChartView::summary() const {
    std::array<double, kSectors> totals{};
    for (std::size_t sector = 0; sector < kSectors; ++sector) {
        totals[sector] = totalOf(countsOfSector(roseData, sector));
    }
    const auto [rarest, prevailing] = std::ranges::minmax_element(totals);
    if (*prevailing <= 0) return "Nessuna direzione ha ore di vento.";
    const auto directionOf = [&](auto position) {
        return directionName(static_cast<std::size_t>(position - totals.begin()));
    };
    return fmt::format("Il vento soffia soprattutto da {} ({} l'anno), meno di tutto da {} ({}).",
                       directionOf(prevailing), formatHours(*prevailing), directionOf(rarest),
                       formatHours(*rarest));
}

}  // namespace kalvo::charts
