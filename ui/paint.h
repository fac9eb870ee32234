#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

/// The shapes that the controls are made of.
namespace kalvo::ui {

inline constexpr int kControlHeight = 30;  // points, without the shadow below
inline constexpr int kShadowHeight = 1;
inline constexpr double kCornerRadius = 6.5;    // of controls
inline constexpr double kFocusRingWidth = 1.6;  // points

/// The rectangle with its edges moved to whole device pixels, so that hairlines stay hairlines at
/// a fractional scale.
[[nodiscard]] QRectF snappedToPixels(const QPainter& painter, const QRectF& rect);

/// The width of a line of at most one point that covers whole device pixels: one at the scales up
/// to 2.
[[nodiscard]] double hairlineWidth(const QPainter& painter);

/// A hairline in the divider's color along the left or upper edge of `rect`.
void paintRule(QPainter& painter, const QRectF& rect, Qt::Orientation orientation);

/// A rounded rectangle with a border inside its edge; a transparent border leaves it plain.
void paintBox(QPainter& painter,
              const QRectF& rect,
              double radius,
              const QColor& fill,
              const QColor& border = Qt::transparent);

/// The soft line of shadow below a raised control that fills `rect`.
void paintShadow(QPainter& painter, const QRectF& rect, double radius);

/// Paints the ring around what has the keyboard focus, just inside `rect`; `brand` is the brand
/// color of what lies below, for the pictures that look the same in both appearances.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& brand);
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius);

}  // namespace kalvo::ui
