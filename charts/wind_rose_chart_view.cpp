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

void drawRing(
    graphics::Canvas& canvas, const Disc& disc, int value, int full, const ChartLook& look) {
    const double radius = static_cast<double>(value) / full * disc.radius;
    canvas.strokeCircle(disc.center, radius, look.gridline(0.3));
}

void drawRingLabel(
    graphics::Canvas& canvas, const Disc& disc, int value, int full, const ChartLook& look) {
    const double radius = static_cast<double>(value) / full * disc.radius;
    // On paper the number of a ring at the rim would run into the compass.
    const double outward = look.isPrinted && value == full ? -6 : 6;
    graphics::TextStyle style = look.labelStyle(7, false);
    style.color = look.ringLabel;
    canvas.drawText(std::to_string(value), {disc.center.x, disc.center.y - radius - outward},
                    style);
}

void drawSpoke(graphics::Canvas& canvas,
               const Disc& disc,
               const Spoke& spoke,
               const ChartLook& look) {
    canvas.strokePath({{{{disc.center, disc.at(spoke.degrees, disc.radius)}, false}}},
                      look.gridline(0.2));
    canvas.drawText(spoke.label, disc.at(spoke.degrees, disc.radius + 12),
                    look.labelStyle(8, true));
}

/// C(k): the counts of classes 0 to k together, for every class k.
using CumulativeCounts = std::array<double, WindRange::kCount>;

SpeedHistogram countsOfSector(const engine::WindRoseData& data, std::size_t sector) {
    const auto found = data.find(static_cast<int>(sector));
    return found == data.end() ? SpeedHistogram{} : speedHistogram(found->second);
}

CumulativeCounts cumulativeCounts(const engine::WindRoseData& data, std::size_t sector) {
    CumulativeCounts cumulative{};
    double sum = 0;
    std::ranges::transform(countsOfSector(data, sector), cumulative.begin(),
                           [&](std::int64_t count) { return sum += static_cast<double>(count); });
    return cumulative;
}

/// The outline of a wedge, its arc in chords of 2.5 degrees.
graphics::Path outlineOf(const graphics::Wedge& wedge) {
    constexpr double kChordDegrees = 2.5;
    graphics::Polyline outline{{wedge.center}, true};
    const double chords = std::ceil((wedge.endBearing - wedge.startBearing) / kChordDegrees);
    for (int i = 0; i <= static_cast<int>(chords); ++i) {
        const double bearing =
            wedge.startBearing + (wedge.endBearing - wedge.startBearing) * i / chords;
        const double radians = bearing * std::numbers::pi / 180;
        outline.points.push_back({wedge.center.x + wedge.radius * std::sin(radians),
                                  wedge.center.y - wedge.radius * std::cos(radians)});
    }
    return {{std::move(outline)}};
}

void drawSector(graphics::Canvas& canvas,
                const Disc& disc,
                std::size_t sector,
                const CumulativeCounts& cumulative,
                int full,
                const ChartLook& look) {
    const double bearing = kSectorDegrees * static_cast<double>(sector);
    for (std::size_t windClass = WindRange::kCount; windClass-- > 0;) {
        if (cumulative[windClass] <= 0) continue;
        const graphics::Wedge wedge{.center = disc.center,
                                    .radius = cumulative[windClass] / full * disc.radius,
                                    .startBearing = bearing - kHalfWedgeDegrees,
                                    .endBearing = bearing + kHalfWedgeDegrees};
        canvas.fillWedge(wedge, WindRange::colors[windClass]);
        if (look.outline) canvas.strokePath(outlineOf(wedge), *look.outline);
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

void WindRoseChartView::draw(graphics::Canvas& canvas,
                             graphics::Size size,
                             const ChartLook& look) const {
    drawInChartFrame(canvas, size, look, [&] {
        const Disc disc = Disc::of(size);
        const Scale shown = scale();
        const std::array rings{shown.innerRing, shown.outerRing};
        for (const int ring : rings) {
            drawRing(canvas, disc, ring, shown.full, look);
            if (!look.isPrinted) drawRingLabel(canvas, disc, ring, shown.full, look);
        }
        for (const Spoke& spoke : kSpokes) drawSpoke(canvas, disc, spoke, look);
        if (look.isPrinted) {
            // What cuts a wedge that is too large, as the frame does on a screen.
            canvas.save();
            canvas.clipRoundedRect({0, 0, size.width, size.height}, 0);
        }
        for (std::size_t sector = 0; sector < kSectors; ++sector) {
            drawSector(canvas, disc, sector, cumulativeCounts(roseData, sector), shown.full, look);
        }
        if (look.isPrinted) {
            canvas.restore();
            for (const int ring : rings) drawRingLabel(canvas, disc, ring, shown.full, look);
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
