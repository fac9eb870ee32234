#include "geo/globe_view.h"

namespace kalvo::geo {

namespace {

using graphics::Canvas;
using graphics::Color;
using graphics::Size;

void drawTarget(const GlobeView& view, Canvas& canvas, const GlobeProjection& projection) {
    const auto place = view.target();
    if (!place) return;
    const auto [point, cosDistance] = projection.project(unitVector(*place));
    if (!(cosDistance >= 0)) return;
    canvas.strokeCircle(point, 8, {graphics::kRed, 2});
    canvas.fillCircle(point, 3, graphics::kRed);
    if (view.targetName) {
        canvas.drawText(*view.targetName, {point.x, point.y - 16}, globeLabelStyle());
    }
}

}  // namespace

graphics::Color globeBackgroundColor() { return Color::hex("#0c1d2d"); }

graphics::TextStyle globeHintStyle() { return {10, true, graphics::kWhite.withOpacity(0.8)}; }

graphics::TextStyle globeLabelStyle() { return {11, true, graphics::kWhite}; }

std::optional<engine::LatLon> GlobeView::target() const {
    if (!targetLat || !targetLon) return std::nullopt;
    return engine::LatLon{*targetLat, *targetLon};
}

void GlobeView::draw(Canvas& canvas, Size size, GlobeScene& scene) const {
    drawBackground(canvas, size, scene);
    drawTurning(canvas, size, scene);
}

void GlobeView::drawBackground(Canvas& canvas, Size size, GlobeScene& scene) const {
    const GlobeProjection projection(center(), size);
    canvas.fillCircle(projection.center(), projection.radius(), globeBackgroundColor());
    canvas.strokeCircle(projection.center(), projection.radius(), {Color::hex("#1f5f7a"), 2});
    scene.parallels.project(projection, scene.projected);
    canvas.strokeLines(scene.projected, Color::hex("#12354c"), 1);
}

void GlobeView::drawTurning(Canvas& canvas, Size size, GlobeScene& scene) const {
    const GlobeProjection projection(center(), size);
    scene.meridians.project(projection, scene.projected);
    canvas.strokeLines(scene.projected, Color::hex("#12354c"), 1);
    scene.outlines.project(projection, scene.projected);
    canvas.strokeLines(scene.projected, Color::hex("#2ebd5e"), scene.outlineWidth);
    drawTarget(*this, canvas, projection);
}

graphics::Rect globeHintBox(Size textSize) {
    constexpr double kEdge = 8;
    constexpr double kPadding = 6;
    return {kEdge, kEdge, textSize.width + 2 * kPadding, textSize.height + 2 * kPadding};
}

void drawGlobeHint(Canvas& canvas, Size textSize) {
    const graphics::Rect box = globeHintBox(textSize);
    canvas.fillRoundedRect(box, 6, graphics::kBlack.withOpacity(0.4));
    canvas.drawText(kGlobeHint, {box.x + box.width / 2, box.y + box.height / 2}, globeHintStyle());
}

}  // namespace kalvo::geo
