#include "graphics/qt/qt_canvas.h"

#include <algorithm>
#include <cmath>
#include <span>

#include <QFont>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>

#include "base/bundle.h"
#include "base/qt/qstring.h"
#include "graphics/qt/clipping.h"
#include "graphics/qt/conversions.h"
#include "graphics/qt/png_reader.h"
#include "graphics/qt/stroker.h"

namespace kalvo::graphics {

namespace {

constexpr int kFontScale = 20;

QPen qtPen(const Stroke& stroke) {
    const auto join = stroke.join == LineJoin::kRound ? Qt::RoundJoin : Qt::MiterJoin;
    QPen pen(toQColor(stroke.color), stroke.width, Qt::SolidLine, Qt::FlatCap, join);
    pen.setMiterLimit(10);
    if (!stroke.dash.empty()) {
        // Qt counts dashes in pen widths.
        QList<qreal> pattern;
        for (const double length : stroke.dash) pattern << length / stroke.width;
        pen.setDashPattern(pattern);
    }
    return pen;
}

bool isNumber(const Rect& rect) {
    return !std::isnan(rect.x) && !std::isnan(rect.y) && !std::isnan(rect.width) &&
           !std::isnan(rect.height);
}

/// The largest distance from a point to a corner of a rectangle.
double farthestCorner(const QPointF& from, const QRectF& rect) {
    const double dx = std::max(std::abs(rect.left() - from.x()), std::abs(rect.right() - from.x()));
    const double dy = std::max(std::abs(rect.top() - from.y()), std::abs(rect.bottom() - from.y()));
    return std::hypot(dx, dy);
}

/// Whether the square around a circle intersects the area; false for a circle that is not made of
/// numbers or has a negative radius.
bool intersectsCircle(const QRectF& area, Point center, double radius) {
    return radius >= 0 && std::abs(center.x - area.center().x()) <= radius + area.width() / 2 &&
           std::abs(center.y - area.center().y()) <= radius + area.height() / 2;
}

/// Whether a circle contains the whole area.
bool circleContains(Point center, double radius, const QRectF& area) {
    return farthestCorner(toQPointF(center), area) < radius;
}

/// The face of a style, of the family of `base` or its sister with digits of one width.
QFont faceOf(const QFont& base, const TextStyle& style) {
    QFont font = base;
    // The last line may have been tabular.
    const QString family = base.families().value(base.families().size() - 1);
    if (style.tabular) {
        font.setFamilies({family + QStringLiteral(" Tabular"), family});
    } else if (base.families().size() > 1) {
        font.setFamilies({family});
    }
    font.setWeight(style.bold ? QFont::DemiBold : QFont::Normal);
    return font;
}

}  // namespace

QFont canvasFont(const QFont& base, const TextStyle& style) {
    QFont font = faceOf(base, style);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.size))));
    return font;
}

QtCanvas::QtCanvas(QPainter& painter, Size size, FrameCache* cache)
    : painter_(painter),
      size_(size),
      base_(painter.worldTransform()),
      cache_(cache != nullptr ? *cache : ownCache_) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::TextAntialiasing);
}

QRectF QtCanvas::visibleArea(double margin) const {
    const QRectF surface(0, 0, size_.width, size_.height);
    const QTransform toLocal = base_ * painter_.worldTransform().inverted();
    return toLocal.mapRect(surface).adjusted(-margin, -margin, margin, margin);
}

void QtCanvas::fillPath(const Path& path, const Color& color) {
    QPainterPath shape;
    shape.setFillRule(Qt::WindingFill);
    const QRectF area = visibleArea(2);
    for (const Polyline& outline : path.polylines) {
        const QPolygonF polygon = clippedFill(outline, area);
        if (polygon.isEmpty()) continue;
        shape.addPolygon(polygon);
        shape.closeSubpath();
    }
    painter_.fillPath(shape, toQColor(color));
}

void QtCanvas::strokePath(const Path& path, const Stroke& stroke) {
    // QPainter has a fast path for lines of up to a pixel, and a file of vectors is smallest with
    // the lines themselves.
    const bool isThin = stroke.width * painter_.deviceTransform().m11() <= 1;
    const bool isVector = painter_.paintEngine()->type() == QPaintEngine::Pdf;
    const bool isMitered = stroke.dash.empty() && stroke.join == LineJoin::kMiter;
    const bool isOutlined = isMitered && !isThin && !isVector;
    QPainterPath shape;
    shape.setFillRule(Qt::WindingFill);
    // A miter may reach ten half widths from its corner.
    const QRectF area = visibleArea(2 + 10 * stroke.width);
    for (const Polyline& line : path.polylines) {
        for (const ClippedPolyline& run : clippedStroke(line, area)) {
            if (isOutlined) {
                appendStroke(run, stroke.width, shape);
            } else {
                shape.addPolygon(QPolygonF(QList(run.points.begin(), run.points.end())));
                if (run.closed) shape.closeSubpath();
            }
        }
    }
    if (isOutlined) {
        painter_.fillPath(shape, toQColor(stroke.color));
    } else {
        painter_.strokePath(shape, qtPen(stroke));
    }
}

void QtCanvas::strokeLines(const LineBatch& lines, const Color& color, double width) {
    if (cache_.thinLines.stroke(painter_, lines, toQColor(color), width, visibleArea(0))) return;
    for (std::size_t i = 0; i < lines.lineCount(); ++i) {
        const std::span<const Point> line = lines.line(i);
        strokePath({{{.points = {line.begin(), line.end()}, .closed = false}}}, {color, width});
    }
}

void QtCanvas::fillRect(const Rect& rect, const Color& color) {
    if (!isNumber(rect)) return;
    const double left = boundedCoordinate(rect.x);
    const double top = boundedCoordinate(rect.y);
    const QRectF bounded(QPointF(left, top), QPointF(boundedCoordinate(rect.x + rect.width),
                                                     boundedCoordinate(rect.y + rect.height)));
    painter_.fillRect(bounded.normalized().intersected(visibleArea(2)), toQColor(color));
}

void QtCanvas::fillRoundedRect(const Rect& rect, double radius, const Color& color) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(toQColor(color));
    painter_.drawRoundedRect(toQRectF(rect), radius, radius);
}

void QtCanvas::strokeRoundedRect(const Rect& rect, double radius, const Stroke& stroke) {
    painter_.setPen(qtPen(stroke));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(toQRectF(rect), radius, radius);
}

void QtCanvas::fillCircle(Point center, double radius, const Color& color) {
    const QRectF area = visibleArea(2);
    if (!intersectsCircle(area, center, radius)) return;
    if (circleContains(center, radius, area)) {
        painter_.fillRect(area, toQColor(color));
        return;
    }
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(toQColor(color));
    painter_.drawEllipse(toQPointF(center), radius, radius);
}

void QtCanvas::strokeCircle(Point center, double radius, const Stroke& stroke) {
    const QRectF area = visibleArea(2 + stroke.width);
    if (!intersectsCircle(area, center, radius) || circleContains(center, radius, area)) return;
    painter_.setPen(qtPen(stroke));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawEllipse(toQPointF(center), radius, radius);
}

void QtCanvas::fillWedge(const Wedge& wedge, const Color& color) {
    const QRectF area = visibleArea(2);
    if (wedge.radius <= 0 || !intersectsCircle(area, wedge.center, wedge.radius)) return;
    // Beyond the farthest corner the arc is out of sight, wherever it runs.
    const double radius = std::min(wedge.radius, 2 * farthestCorner(toQPointF(wedge.center), area));
    const QRectF box(wedge.center.x - radius, wedge.center.y - radius, 2 * radius, 2 * radius);
    QPainterPath shape(toQPointF(wedge.center));
    // Qt counts angles counter-clockwise from east.
    shape.arcTo(box, 90 - wedge.startBearing, wedge.startBearing - wedge.endBearing);
    shape.closeSubpath();
    painter_.fillPath(shape, toQColor(color));
}

void QtCanvas::drawText(std::string_view text, Point center, const TextStyle& style) {
    if (!intersectsCircle(visibleArea(1000), center, 0)) return;
    const QFont font = canvasFont(painter_.font(), style);
    painter_.setFont(font);
    painter_.setPen(toQColor(style.color));
    const QStaticText& layout = cache_.texts.of(text, font);
    const QSizeF size = layout.size();
    painter_.drawStaticText(QPointF(center.x - size.width() / 2, center.y - size.height() / 2),
                            layout);
}

QFont QtCanvas::exactFont(const TextStyle& style) const {
    QFont font = faceOf(painter_.font(), style);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.size * kFontScale))));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void QtCanvas::drawTextLine(std::string_view text,
                            Point baseline,
                            TextAlignment alignment,
                            const TextStyle& style) {
    if (!intersectsCircle(visibleArea(1000), baseline, 0)) return;
    const double share = alignment == TextAlignment::kLeft     ? 0
                         : alignment == TextAlignment::kCenter ? 0.5
                                                               : 1;
    const double left = share == 0 ? 0 : -share * textWidth(text, style) * kFontScale;
    painter_.save();
    painter_.translate(baseline.x, baseline.y);
    painter_.scale(1.0 / kFontScale, 1.0 / kFontScale);
    painter_.setFont(exactFont(style));
    painter_.setPen(toQColor(style.color));
    painter_.drawText(QPointF(left, 0), base::toQString(text));
    painter_.restore();
}

double QtCanvas::textWidth(std::string_view text, const TextStyle& style) const {
    return QFontMetricsF(exactFont(style)).horizontalAdvance(base::toQString(text)) / kFontScale;
}

void QtCanvas::drawPicture(const std::filesystem::path& file, const Rect& rect) {
    const auto bytes = base::readFile(file);
    if (!bytes) return;
    painter_.save();
    painter_.setRenderHint(QPainter::SmoothPixmapTransform);
    painter_.setRenderHint(QPainter::LosslessImageRendering);
    painter_.drawImage(toQRectF(rect), readPng(*bytes));
    painter_.restore();
}

void QtCanvas::save() { painter_.save(); }
void QtCanvas::restore() { painter_.restore(); }
void QtCanvas::translate(double dx, double dy) { painter_.translate(dx, dy); }
void QtCanvas::scale(double factor) { painter_.scale(factor, factor); }

void QtCanvas::clipRoundedRect(const Rect& rect, double radius) {
    QPainterPath shape;
    shape.addRoundedRect(toQRectF(rect), radius, radius);
    painter_.setClipPath(shape, Qt::IntersectClip);
}

}  // namespace kalvo::graphics
