#pragma once

#include "graphics/canvas.h"

/// The key to the colors of the wind map: which mean wind at 10 m each stands for. Yields are
/// those of the catalogue's scale, in kWh per year (engine/wind_scale.h).
namespace kalvo::geo {

/// Returns the card of the legend at the bottom left of a map's view, smaller in one narrower than
/// 400 points.
[[nodiscard]] graphics::Rect windLegendCard(graphics::Size viewSize);

/// Draws the legend in a map's view.
void drawWindLegend(graphics::Canvas& canvas, graphics::Size viewSize);

/// Marks a yield on the scale of a legend drawn before.
void drawWindLegendMark(graphics::Canvas& canvas, graphics::Size viewSize, double kwh);

/// Fills a rectangle with rounded ends with the colors from 8 km/h on the left to 20 km/h on the
/// right.
void drawWindRamp(graphics::Canvas& canvas, const graphics::Rect& ramp);

}  // namespace kalvo::geo
