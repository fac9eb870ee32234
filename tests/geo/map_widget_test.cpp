#include "geo/qt/map_widget.h"

#include <gtest/gtest.h>

#include <memory>

#include <QAbstractButton>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include "base/bundle.h"
#include "graphics/qt/qt_canvas.h"
#include "tests/geojson/geojson_texts.h"
#include "tests/support/painted_areas.h"
#include "tests/support/pictures.h"

namespace kalvo::geo {
namespace {

using graphics::Size;
using tests::featureText;

// In a view of 128 x 128 the box from 10, 10 to 20, 20 takes the 100 points in the middle.
geojson::GeoMapData square(const std::string& properties) {
    return tests::mapOf({featureText(properties, "[[[10,10],[20,10],[20,20],[10,20]]]")});
}

MapView mapView(MapType type) {
    MapView view{};
    view.mapType = type;
    view.geoData = square(R"({"regione":"Lazio","provincia":"Rom<a>","sigla":"RM"})");
    return view;
}

class MapWidgetTest : public testing::Test {
 protected:
    MapWidgetTest() {
        map_.resize(128, 128);
        map_.setContent(mapView(MapType::kProvince));
        map_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&map_));
    }

    [[nodiscard]] double scale() const { return map_.view().gestures.scale; }
    [[nodiscard]] Size offset() const { return map_.view().gestures.offset; }

    void turnWheel(int eighthsOfDegrees, QPointF at = {64, 64}) {
        QWheelEvent wheel(at, map_.mapToGlobal(at), {}, {0, eighthsOfDegrees}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&map_, &wheel);
    }

    /// Moves the pointer without any button, whatever the last press of QTest was.
    void hover(QPointF at) {
        QMouseEvent move(QEvent::MouseMove, at, map_.mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&map_, &move);
    }

    void nativeGesture(Qt::NativeGestureType type, double value = 0) {
        QNativeGestureEvent gesture(type, QPointingDevice::primaryPointingDevice(), 2, {64, 64},
                                    {64, 64}, {64, 64}, value, {});
        QApplication::sendEvent(&map_, &gesture);
    }

    [[nodiscard]] QColor pixel(QPoint at) { return map_.grab().toImage().pixelColor(at); }

    MapWidget map_;
    const QColor background_{0xf4, 0xf9, 0xfc};
};

TEST_F(MapWidgetTest, ADragWithTheLeftButtonMovesTheMap) {
    for (const auto& [button, reached] :
         {std::pair{Qt::LeftButton, Size{30, -20}}, {Qt::RightButton, Size{30, -20}}}) {
        QTest::mousePress(&map_, button, {}, {64, 64});
        EXPECT_EQ(map_.cursor().shape() == Qt::ClosedHandCursor, button == Qt::LeftButton);
        QTest::mouseMove(&map_, {94, 44});
        QTest::mouseRelease(&map_, button, {}, {94, 44});
        EXPECT_EQ(map_.cursor().shape(), Qt::OpenHandCursor);
        QTest::mouseMove(&map_, {10, 10});
        EXPECT_EQ(offset(), reached);
    }
    // A press whose release went elsewhere does not make the next drag jump.
    QTest::mousePress(&map_, Qt::LeftButton, {}, {64, 64});
    QTest::mouseMove(&map_, {94, 64});
    QTest::mousePress(&map_, Qt::LeftButton, {}, {10, 10});
    QTest::mouseMove(&map_, {12, 10});
    EXPECT_EQ(offset(), (Size{60, -20}));
    QTest::mouseRelease(&map_, Qt::LeftButton, {}, {12, 10});
    QTest::mouseDClick(&map_, Qt::LeftButton, {}, {64, 64});
    EXPECT_EQ(map_.view().gestures, MapGestures{});
}

TEST_F(MapWidgetTest, TheWheelAndPinchesZoom) {
    turnWheel(120, {114, 64});
    EXPECT_DOUBLE_EQ(scale(), 1.25);
    EXPECT_EQ(offset(), (Size{-12.5, 0})) << "round the pointer";
    turnWheel(-240, {114, 64});
    EXPECT_DOUBLE_EQ(scale(), 0.8);
    // The steps of a pinch add up: 1.5, 2; and another one goes on from there: a quarter less.
    for (const auto& steps : {std::vector{0.5, 0.5}, {-0.25}}) {
        nativeGesture(Qt::BeginNativeGesture);
        for (const double step : steps) nativeGesture(Qt::ZoomNativeGesture, step);
        nativeGesture(Qt::EndNativeGesture);
    }
    EXPECT_DOUBLE_EQ(scale(), 0.8 * 2 * 0.75);
}

TEST_F(MapWidgetTest, FingersDragAndPinchFromTheThresholdsOfMouseAndPad) {
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    auto touch = QTest::touchEvent(&map_, screen.get(), false);
    touch.press(0, {54, 64}).commit();
    touch.move(0, {60, 71}).commit();
    EXPECT_EQ(offset(), (Size{0, 0})) << "9.2 points";
    touch.move(0, {60, 72}).commit();
    EXPECT_EQ(offset(), (Size{6, 8})) << "10 points";
    touch.stationary(0).press(1, {80, 72}).commit();
    // Twice as far apart about the same center: the picture grows about the view's.
    touch.move(0, {50, 72}).move(1, {90, 72}).commit();
    EXPECT_DOUBLE_EQ(scale(), 2);
    EXPECT_EQ(offset(), (Size{6, 8}));
    touch.release(0, {50, 72}).stationary(1).commit();
    touch.move(1, {60, 72}).commit();
    EXPECT_EQ(offset(), (Size{-24, 8})) << "the finger that stays drags on";
    touch.release(1, {60, 72}).commit();
    EXPECT_DOUBLE_EQ(scale(), 2);
}

TEST_F(MapWidgetTest, OutlinesWhatIsUnderThePointerButNotWhileItDrags) {
    // Its left edge is at 14: the line lies outside it, from 12.2.
    const auto isOutlined = [this] { return pixel({13, 30}).lightness() < 100; };
    hover({30, 30});
    EXPECT_TRUE(isOutlined());
    QTest::mousePress(&map_, Qt::LeftButton, {}, {30, 30});
    QTest::mouseMove(&map_, {30, 45});
    QTest::mouseMove(&map_, {30, 30});
    EXPECT_FALSE(isOutlined());
    QTest::mouseRelease(&map_, Qt::LeftButton, {}, {30, 30});
    EXPECT_TRUE(isOutlined());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&map_, &leave);
    EXPECT_FALSE(isOutlined());
}

TEST_F(MapWidgetTest, ButtonsZoomAboutTheCenterAndLetNothingThrough) {
    const auto button = [this](const char* name) {
        for (auto* each : map_.findChildren<QAbstractButton*>()) {
            if (each->accessibleName() == name) return each;
        }
        return static_cast<QAbstractButton*>(nullptr);
    };
    // 1.25 to the power of 13 is more than 15.
    for (int i = 0; i < 14; ++i) QTest::mouseClick(button("Ingrandisci"), Qt::LeftButton);
    EXPECT_DOUBLE_EQ(scale(), 15);
    EXPECT_EQ(offset(), (Size{0, 0}));
    QTest::mouseDClick(button("Ingrandisci"), Qt::LeftButton);
    EXPECT_DOUBLE_EQ(scale(), 15) << "no double click of the map";
    QTest::mouseClick(button("Riduci"), Qt::LeftButton);
    EXPECT_DOUBLE_EQ(scale(), 12);
    QTest::mouseClick(button("Tutta la mappa"), Qt::LeftButton);
    EXPECT_EQ(map_.view().gestures, MapGestures{});

    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    QTest::touchEvent(button("Ingrandisci"), screen.get()).press(0, {15, 15});
    QTest::touchEvent(button("Ingrandisci"), screen.get()).release(0, {15, 15});
    EXPECT_DOUBLE_EQ(scale(), 1.25) << "a touch clicks, too";
}

TEST_F(MapWidgetTest, TheLegendLiesOverTheWindMapAndInItsPicture) {
    map_.resize(400, 300);
    map_.setContent(mapView(MapType::kWind));
    for (const QColor& strongest : {pixel({218, 258}), map_.picture(1).pixelColor(218, 258)}) {
        EXPECT_GT(strongest.red(), 250);
        EXPECT_LT(strongest.green(), 60);
    }
}

TEST_F(MapWidgetTest, KeysZoomAndMove) {
    QTest::keyClick(&map_, Qt::Key_Plus);
    QTest::keyClick(&map_, Qt::Key_Equal);
    EXPECT_DOUBLE_EQ(scale(), 1.5625);
    QTest::keyClick(&map_, Qt::Key_Minus);
    EXPECT_DOUBLE_EQ(scale(), 1.25);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_Up,
                              Qt::Key_Up, Qt::Key_Down}) {
        QTest::keyClick(&map_, key);
    }
    EXPECT_EQ(offset(), (Size{-40, 80}));
    QTest::keyClick(&map_, Qt::Key_Home);
    EXPECT_EQ(map_.view().gestures, MapGestures{});
}

TEST_F(MapWidgetTest, WhatChangesShowsAndWhatStaysIsNotDrawnAgain) {
    const QColor normal = pixel({64, 64});
    MapView selected = mapView(MapType::kProvince);
    selected.selectedProvince = "RM";
    map_.setContent(selected);
    EXPECT_EQ(pixel({64, 64}), QColor(0xfca311));
    map_.setContent(mapView(MapType::kProvince));
    EXPECT_EQ(pixel({64, 64}), normal);

    QTest::keyClick(&map_, Qt::Key_Plus);
    EXPECT_EQ(pixel({8, 64}), normal) << "the square now takes 125 of 128 points";
    map_.resize(256, 128);
    EXPECT_EQ(pixel({8, 64}), background_);

    const auto isPainted = [this](auto change) {
        QApplication::processEvents();
        tests::PaintedAreas painted(map_);
        change();
        QApplication::processEvents();
        return !painted.list.empty();
    };
    EXPECT_FALSE(isPainted([this] {
        map_.setContent(mapView(MapType::kProvince));
        turnWheel(0);
        nativeGesture(Qt::ZoomNativeGesture, 0.005);
    }));
    EXPECT_TRUE(isPainted([&] { map_.setContent(selected); }));
}

TEST_F(MapWidgetTest, AMapThatMovesLooksAsIfDrawnAnew) {
    MapView view = mapView(MapType::kWind);
    view.geoData = tests::mapOf({featureText(
        "{}", "[[[10,10],[20,11],[12,13],[19,20],[16,19.5],[15,12.3],[11,18],[10,10]]]")});
    view.targetLat = view.targetLon = 15;
    map_.setContent(view);
    turnWheel(240, {40, 80});
    map_.grab();
    QTest::mousePress(&map_, Qt::LeftButton, {}, {64, 64});
    for (const QPoint& to : {QPoint{77, 64}, {77, 90}, {53, 41}, {250, 41}, {60, 60}}) {
        QTest::mouseMove(&map_, to);
        const QImage moved = map_.grab().toImage();
        map_.resize(129, 129);
        map_.resize(128, 128);  // throws the kept picture away
        EXPECT_LE(tests::difference(moved, map_.grab().toImage()).largest, 2) << to.x();
    }
}

TEST_F(MapWidgetTest, TheTilesOfThePictureJoinWithoutASeam) {
    MapView view = mapView(MapType::kProvince);
    view.geoData = base::readFile(KALVO_SOURCE_DIR "/resources/province.json")
                       .and_then(geojson::decodeGeoJSON)
                       .value();
    for (const QSize size : {QSize(301, 403), QSize(200, 1), QSize(150, 3)}) {
        MapWidget map;
        map.resize(size);
        map.setContent(view);
        QTest::keyClick(&map, Qt::Key_Plus);
        QImage expected(size, QImage::Format_RGB32);
        QPainter painter(&expected);
        graphics::QtCanvas canvas(painter, {double(size.width()), double(size.height())});
        map.view().draw(canvas, {double(size.width()), double(size.height())});
        painter.end();
        QImage drawn(size, QImage::Format_RGB32);
        map.render(&drawn, {}, {}, {});
        EXPECT_EQ(tests::difference(drawn, expected).largest, 0) << size.height();
    }
}

TEST_F(MapWidgetTest, ZoomOutlivesNewDataButNotAnotherMapOrAnotherPage) {
    turnWheel(120);
    MapView other = mapView(MapType::kProvince);
    other.geoData = square("{}");
    other.targetLat = 12;
    map_.setContent(other);
    EXPECT_DOUBLE_EQ(scale(), 1.25);
    map_.setContent(mapView(MapType::kRegion));
    EXPECT_DOUBLE_EQ(scale(), 1);
    turnWheel(120);
    map_.hide();
    map_.show();
    EXPECT_DOUBLE_EQ(scale(), 1);
}

TEST_F(MapWidgetTest, AToolTipNamesWhatIsUnderThePointer) {
    QHelpEvent help(QEvent::ToolTip, {64, 64}, map_.mapToGlobal(QPoint(64, 64)));
    QApplication::sendEvent(&map_, &help);
    EXPECT_EQ(QToolTip::text(), "<div style='white-space:pre'>Rom&lt;a&gt; (RM)</div>");
}

TEST_F(MapWidgetTest, IsDescribedForThoseWhoCannotSeeIt) {
    map_.setContent(mapView(MapType::kRegion));
    EXPECT_EQ(map_.accessibleName(), "Mappa delle regioni");
    EXPECT_TRUE(map_.accessibleDescription().startsWith("Regioni: 1."));
}

TEST_F(MapWidgetTest, FocusShowsOnceTheKeyboardIsUsed) {
    QTest::mouseClick(&map_, Qt::LeftButton, {}, {64, 64});
    EXPECT_TRUE(map_.hasFocus());
    EXPECT_EQ(pixel({64, 2}), background_);
    QTest::keyClick(&map_, Qt::Key_Tab);
    EXPECT_NE(pixel({64, 2}), background_);
    map_.clearFocus();
    EXPECT_EQ(pixel({64, 2}), background_);
}

}  // namespace
}  // namespace kalvo::geo
