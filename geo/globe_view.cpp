#include "geo/globe_view.h"

#include "geo/globe_projection.h"

namespace kalvo::geo {

namespace {

using platform::Canvas;
using platform::Color;
using platform::Size;

void drawTarget(const GlobeView& view, Canvas& canvas, const GlobeProjection& projection) {
    if (!view.targetLat || !view.targetLon) return;
    const auto [point, cosDistance] =
        projection.project(unitVector({*view.targetLat, *view.targetLon}));
    if (!(cosDistance >= 0)) return;
    canvas.strokeCircle(point, 8, {platform::kRed, 2});
    canvas.fillCircle(point, 3, platform::kRed);
    if (view.targetName) {
        canvas.drawText(*view.targetName, {point.x, point.y - 16}, globeLabelStyle());
    }
}

}  // namespace

platform::Color globeGroundColor() { return Color::hex("#0c1d2d"); }

platform::TextStyle globeHintStyle() { return {10, true, platform::kWhite.withOpacity(0.8)}; }

platform::TextStyle globeLabelStyle() { return {11, true, platform::kWhite}; }

void GlobeView::draw(Canvas& canvas, Size size, GlobeScene& scene) const {
    drawGround(canvas, size, scene);
    drawTurning(canvas, size, scene);
}

void GlobeView::drawGround(Canvas& canvas, Size size, GlobeScene& scene) const {
    const GlobeProjection projection(centerLat, centerLon, size);
    canvas.fillCircle(projection.middle(), projection.radius(), globeGroundColor());
    canvas.strokeCircle(projection.middle(), projection.radius(), {Color::hex("#1f5f7a"), 2});
    scene.parallels.project(projection, scene.projected);
    canvas.strokeLines(scene.projected, Color::hex("#12354c"), 1);
}

void GlobeView::drawTurning(Canvas& canvas, Size size, GlobeScene& scene) const {
    const GlobeProjection projection(centerLat, centerLon, size);
    scene.meridians.project(projection, scene.projected);
    canvas.strokeLines(scene.projected, Color::hex("#12354c"), 1);
    scene.outlines.project(projection, scene.projected);
    canvas.strokeLines(scene.projected, Color::hex("#2ebd5e"), scene.outlineWidth);
    drawTarget(*this, canvas, projection);
}

platform::Rect globeHintBox(Size textSize) {
    constexpr double kEdge = 8;
    constexpr double kPadding = 6;
    return {kEdge, kEdge, textSize.width + 2 * kPadding, textSize.height + 2 * kPadding};
}

void drawGlobeHint(Canvas& canvas, Size textSize) {
    const platform::Rect box = globeHintBox(textSize);
    canvas.fillRoundedRect(box, 6, platform::kBlack.withOpacity(0.4));
    canvas.drawText(kGlobeHint, {box.x + box.width / 2, box.y + box.height / 2}, globeHintStyle());
}

}  // namespace kalvo::geo
