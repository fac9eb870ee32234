#pragma once

#include <algorithm>

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include "graphics/color.h"
#include "graphics/geometry.h"

/// Conversions between the colors and the plane geometry of drawings and Qt's, in points.
namespace kalvo::graphics {

/// Returns the color with its components brought into 0 to 1.
[[nodiscard]] inline QColor toQColor(const Color& color) {
    const auto component = [](double value) {
        return static_cast<float>(std::clamp(value, 0.0, 1.0));
    };
    return QColor::fromRgbF(component(color.red), component(color.green), component(color.blue),
                            component(color.opacity));
}

[[nodiscard]] inline QPointF toQPointF(Point point) { return {point.x, point.y}; }
[[nodiscard]] inline QRectF toQRectF(const Rect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}

[[nodiscard]] inline Point toPoint(const QPointF& point) { return {point.x(), point.y()}; }
[[nodiscard]] inline Size toSize(const QSizeF& size) { return {size.width(), size.height()}; }

}  // namespace kalvo::graphics
