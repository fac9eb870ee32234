#include <cmath>

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include "engine/location_parser.h"
#include "geo/globe_projection.h"
#include "geo/globe_view.h"
#include "geo/globe_widget.h"

/// The pictures of the globe with the world's outlines, against drawings made the long way.
namespace kalvo::geo {
namespace {

using engine::CountryRing;

constexpr QSize kSize(970, 508);

const std::vector<CountryRing>& countries() {
    static const platform::Bundle bundle(KALVO_SOURCE_DIR "/resources");
    static engine::LocationParser parser(bundle, platform::Diagnostics::standardOutput());
    return parser.loadWorldCountryRings();
}

QImage paper(double scale) {
    QImage image(kSize * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    return image;
}

/// Point by point by the formula, every line a path of its own.
class LongWay {
 public:
    LongWay(QPaintDevice& device, double lat, double lon)
        : painter_(&device), lat_(toRadians(lat)), lon_(toRadians(lon)) {
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    void draw() {
        painter_.fillRect(QRect(QPoint(), kSize), QColor("#0c1d2d"));
        painter_.setPen(QPen(QColor("#1f5f7a"), 2));
        painter_.drawEllipse(QPointF(485, 254), kRadius, kRadius);
        for (double lat = -60; lat <= 60; lat += 30) {
            CountryRing line;
            for (double lon = -180; lon <= 180; lon += 5) line.push_back({lat, lon});
            stroke(line, "#12354c", 1);
        }
        for (double lon = -180; lon <= 150; lon += 30) {
            CountryRing line;
            for (double lat = -85; lat <= 85; lat += 5) line.push_back({lat, lon});
            stroke(line, "#12354c", 1);
        }
        for (const CountryRing& ring : countries()) stroke(ring, "#2ebd5e", 1.2);
    }

 private:
    static constexpr double kRadius = 508 / 2.3;

    void stroke(const CountryRing& line, const char* color, double width) {
        QPainterPath path;
        bool joined = false;
        for (const engine::LatLon& place : line) {
            const double lat = toRadians(place.lat);
            const double turn = toRadians(place.lon) - lon_;
            const double cosDistance =
                std::sin(lat_) * std::sin(lat) + std::cos(lat_) * std::cos(lat) * std::cos(turn);
            const QPointF point(485 + kRadius * std::cos(lat) * std::sin(turn),
                                254 - kRadius * (std::cos(lat_) * std::sin(lat) -
                                                 std::sin(lat_) * std::cos(lat) * std::cos(turn)));
            if (cosDistance >= -0.05 && joined) path.lineTo(point);
            if (cosDistance >= -0.05 && !joined) path.moveTo(point);
            joined = cosDistance >= -0.05;
        }
        QPen pen(QColor(color), width, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
        pen.setMiterLimit(2);
        painter_.strokePath(path, pen);
    }

    QPainter painter_;
    double lat_;
    double lon_;
};

/// The mean difference of a color component, of 255.
double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            sum += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                   std::abs(a.blue() - b.blue());
        }
    }
    return sum / 3 / one.width() / one.height();
}

TEST(GlobePictureTest, LooksLikeTheDrawingMadeTheLongWay) {
    struct Case {
        double scale;
        double lat;
        double lon;
    };
    for (const Case& c : {Case{1, 41, 12}, Case{2, 41, 12}, Case{1, -85, 170}, Case{1, 0, -180}}) {
        QImage expected = paper(c.scale);
        LongWay(expected, c.lat, c.lon).draw();
        GlobeWidget globe(countries);
        globe.resize(kSize);
        globe.setCenter(toRadians(c.lat), toRadians(c.lon));
        QImage picture = paper(c.scale);
        globe.render(&picture);
        // The hint is not part of the comparison.
        for (QImage* image : {&expected, &picture}) {
            QPainter(image).fillRect(0, 0, 250, 40, Qt::black);
        }
        EXPECT_LT(meanDifference(picture, expected), 0.4)
            << "scale " << c.scale << " from " << c.lat << " " << c.lon;
    }
}

TEST(GlobePictureTest, WhatIsKeptFitsTheNextPicture) {
    const auto fresh = [](double lat, double lon, QSize size) {
        GlobeWidget globe(countries);
        globe.resize(size);
        globe.setCenter(lat, lon);
        return globe.grab().toImage();
    };
    GlobeWidget globe(countries);
    globe.resize(kSize);
    globe.grab();
    globe.setCenter(0.5, 1);
    EXPECT_EQ(globe.grab().toImage(), fresh(0.5, 1, kSize));
    // The corners of the parallels stay where they were, a tenth of a point from where they would
    // be now.
    globe.setCenter(0.5, 2);
    EXPECT_LT(meanDifference(globe.grab().toImage(), fresh(0.5, 2, kSize)), 0.02);
    for (const QSize size : {QSize(300, 400), QSize(301, 400), QSize(970, 300)}) {
        globe.resize(size);
        EXPECT_EQ(globe.grab().toImage(), fresh(0.5, 2, size));
    }
}

}  // namespace
}  // namespace kalvo::geo
