#include <gtest/gtest.h>
#include <QCoreApplication>

#include "geo/globe_projection.h"
#include "geo/qt/globe_widget.h"
#include "tests/geo/reference_globe.h"
#include "tests/support/pictures.h"

namespace kalvo::geo {
namespace {

/// A globe past its first frame, which comes without lines.
void finish(GlobeWidget& globe, QSize size) {
    globe.resize(size);
    globe.grab();
    QCoreApplication::processEvents();
}

TEST(GlobePictureTest, LooksLikeTheStraightforwardDrawing) {
    struct Case {
        double scale;
        double lat;
        double lon;
    };
    for (const Case& c : {Case{1, 41, 12}, Case{2, 41, 12}, Case{1, -85, 170}, Case{1, 0, -180}}) {
        QImage expected = reference::paper(c.scale);
        QPainter painter(&expected);
        reference::draw(painter, {toRadians(c.lat), toRadians(c.lon)});
        painter.end();
        GlobeWidget globe(reference::countries);
        finish(globe, reference::kViewSize);
        globe.setCenter({toRadians(c.lat), toRadians(c.lon)});
        QImage picture = reference::paper(c.scale);
        globe.render(&picture);
        // The hint is not part of the comparison.
        for (QImage* image : {&expected, &picture}) {
            QPainter(image).fillRect(0, 0, 250, 40, Qt::black);
        }
        EXPECT_LT(tests::difference(picture, expected).mean, 0.4)
            << "scale " << c.scale << " from " << c.lat << " " << c.lon;
    }
}

TEST(GlobePictureTest, WhatIsKeptFitsTheNextPicture) {
    const auto fresh = [](double lat, double lon, QSize size) {
        GlobeWidget globe(reference::countries);
        finish(globe, size);
        globe.setCenter({lat, lon});
        return globe.grab().toImage();
    };
    GlobeWidget globe(reference::countries);
    finish(globe, reference::kViewSize);
    globe.grab();
    globe.setCenter({0.5, 1});
    EXPECT_EQ(globe.grab().toImage(), fresh(0.5, 1, reference::kViewSize));
    // The corners of the parallels stay where they were, a tenth of a point from where they would
    // be now.
    globe.setCenter({0.5, 2});
    EXPECT_LT(tests::difference(globe.grab().toImage(), fresh(0.5, 2, reference::kViewSize)).mean,
              0.02);
    for (const QSize size : {QSize(300, 400), QSize(301, 400), QSize(970, 300)}) {
        globe.resize(size);
        EXPECT_EQ(globe.grab().toImage(), fresh(0.5, 2, size));
    }
}

}  // namespace
}  // namespace kalvo::geo
