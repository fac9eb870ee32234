#pragma once

#include <cmath>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include "engine/location_parser.h"
#include "geo/globe_projection.h"
#include "tests/support/pictures.h"

/// The globe drawn the straightforward way: every sine and cosine for every point, every line a
/// path of its own. What the real drawing must look like, and be faster than.
namespace kalvo::geo::reference {

inline constexpr QSize kViewSize(970, 508);

inline const std::vector<engine::CountryRing>& countries() {
    static const base::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    static engine::LocationParser parser(bundle, base::Diagnostics::standardOutput());
    return parser.loadWorldCountryRings();
}

/// A blank picture for the view, at so many pixels a point.
inline QImage paper(double scale) { return tests::paper(kViewSize, scale); }

struct Projected {
    QPointF point;
    double cosDistance;
};

inline Projected project(engine::LatLon place, LatLonRadians center) {
    const double radius = std::min(kViewSize.width(), kViewSize.height()) / 2.3;
    const double lat = toRadians(place.lat);
    const double turn = toRadians(place.lon) - center.lon;
    const double x = std::cos(lat) * std::sin(turn);
    const double y = std::cos(center.lat) * std::sin(lat) -
                     std::sin(center.lat) * std::cos(lat) * std::cos(turn);
    return {{kViewSize.width() * 0.5 + radius * x, kViewSize.height() * 0.5 - radius * y},
            std::sin(center.lat) * std::sin(lat) +
                std::cos(center.lat) * std::cos(lat) * std::cos(turn)};
}

inline void stroke(QPainter& painter, const engine::CountryRing& line, LatLonRadians center) {
    QPainterPath path;
    bool joined = false;
    for (const engine::LatLon& place : line) {
        const auto [point, cosDistance] = project(place, center);
        const bool visible = cosDistance >= -0.05;
        if (visible && joined) path.lineTo(point);
        if (visible && !joined) path.moveTo(point);
        joined = visible;
    }
    painter.drawPath(path);
}

inline QPen pen(const char* color, double width) {
    QPen pen(QColor(color), width, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
    pen.setMiterLimit(2);
    return pen;
}

inline void draw(QPainter& painter, LatLonRadians center) {
    const double radius = std::min(kViewSize.width(), kViewSize.height()) / 2.3;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(QPoint(), kViewSize), QColor("#0c1d2d"));
    painter.setPen(pen("#1f5f7a", 2));
    painter.setBrush(QColor("#0c1d2d"));
    painter.drawEllipse(QRectF(QPointF(), kViewSize).center(), radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen("#12354c", 1));
    for (int lat = -60; lat <= 60; lat += 30) {
        engine::CountryRing line;
        for (int lon = -180; lon <= 180; lon += 5) line.push_back({double(lat), double(lon)});
        stroke(painter, line, center);
    }
    for (int lon = -180; lon <= 150; lon += 30) {
        engine::CountryRing line;
        for (int lat = -85; lat <= 85; lat += 5) line.push_back({double(lat), double(lon)});
        stroke(painter, line, center);
    }
    painter.setPen(pen("#2ebd5e", 1.2));
    for (const engine::CountryRing& ring : countries()) stroke(painter, ring, center);
}

}  // namespace kalvo::geo::reference
