#include "geo/qt/globe_widget.h"

#include <gtest/gtest.h>

#include <QTest>

#include "tests/support/painted_areas.h"

namespace kalvo::geo {
namespace {

/// A globe of radius 100 round (115, 115), with what it told.
class GlobeWidgetTest : public testing::Test {
 protected:
    GlobeWidgetTest() {
        globe_.resize(230, 230);
        globe_.onGlobeTap = [this](engine::LatLon place) { taps_.push_back(place); };
        globe_.onCenterChanged = [this](LatLonRadians) { ++moves_; };
    }

    /// Shows the globe and stops it where it is.
    void showStill() {
        globe_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&globe_));
        QTest::keyClick(&globe_, Qt::Key_Space);
        moves_ = 0;
        globe_.setCenter({});
    }

    std::vector<engine::CountryRing> rings_;
    int ringRequests_ = 0;
    GlobeWidget globe_{[this]() -> const std::vector<engine::CountryRing>& {
        ++ringRequests_;
        return rings_;
    }};
    std::vector<engine::LatLon> taps_;
    int moves_ = 0;
};

TEST_F(GlobeWidgetTest, AClickTellsThePlaceAndADoubleClickTellsItOnce) {
    showStill();
    // Through the hint's box, at the top left: still outside the disc.
    QTest::mouseClick(&globe_, Qt::LeftButton, {}, {12, 12});
    EXPECT_TRUE(taps_.empty());
    QTest::mouseClick(&globe_, Qt::RightButton, {}, {115, 115});
    EXPECT_TRUE(taps_.empty());
    QTest::mouseClick(&globe_, Qt::LeftButton, {}, {165, 115});
    QTest::mouseDClick(&globe_, Qt::LeftButton, {}, {165, 115});
    QTest::mouseRelease(&globe_, Qt::LeftButton, {}, {165, 115});
    ASSERT_EQ(taps_.size(), 1u);
    EXPECT_NEAR(taps_[0].lat, 0, 1e-9);
    EXPECT_NEAR(taps_[0].lon, 30, 1e-9);
    EXPECT_EQ(moves_, 0);
}

TEST_F(GlobeWidgetTest, ADragTurnsTheGlobeAndIsNoTap) {
    showStill();
    QTest::mousePress(&globe_, Qt::LeftButton, {}, {100, 100});
    QTest::mouseMove(&globe_, {105, 100});
    EXPECT_EQ(moves_, 0);
    QTest::mouseMove(&globe_, {100, 150});
    EXPECT_EQ(moves_, 1);
    EXPECT_GT(globe_.center().lat, 0);
    QTest::mouseRelease(&globe_, Qt::LeftButton, {}, {100, 150});
    EXPECT_TRUE(taps_.empty());
    QTest::mouseMove(&globe_, {50, 50});
    EXPECT_EQ(moves_, 1);
}

TEST_F(GlobeWidgetTest, KeysTurnTapAndPause) {
    showStill();
    for (const Qt::Key key :
         {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down}) {
        QTest::keyClick(&globe_, key);
    }
    EXPECT_EQ(moves_, 6);
    QTest::keyClick(&globe_, Qt::Key_Return);
    ASSERT_EQ(taps_.size(), 1u);
    EXPECT_NEAR(taps_[0].lat, 5, 1e-9);
    EXPECT_NEAR(taps_[0].lon, 5, 1e-9);
    QTest::keyClick(&globe_, Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([this] { return moves_ > 6; }, 2000));
}

TEST_F(GlobeWidgetTest, ShowsItsFocusToWhoeverUsesTheKeyboard) {
    showStill();
    const auto hasRing = [this] {
        return globe_.grab().toImage().pixelColor(115, 2).green() > 150;
    };
    EXPECT_TRUE(hasRing());
    QTest::mouseClick(&globe_, Qt::LeftButton, {}, {20, 115});
    EXPECT_FALSE(hasRing());
    QTest::keyClick(&globe_, Qt::Key_F5);
    EXPECT_FALSE(hasRing());
    QTest::keyClick(&globe_, Qt::Key_Left);
    EXPECT_TRUE(hasRing());
    globe_.clearFocus();
    EXPECT_FALSE(hasRing());
    globe_.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(hasRing());
}

TEST_F(GlobeWidgetTest, TurnsOnlyWhileItIsShown) {
    globe_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&globe_));
    EXPECT_TRUE(QTest::qWaitFor([this] { return moves_ >= 2; }, 2000));
    globe_.hide();
    moves_ = 0;
    QTest::qWait(120);
    EXPECT_EQ(moves_, 0);
    // Stopped by a drag and hidden: shown again it turns at once, as a new one would.
    globe_.show();
    QTest::keyClick(&globe_, Qt::Key_Left);
    globe_.hide();
    globe_.show();
    moves_ = 0;
    EXPECT_TRUE(QTest::qWaitFor([this] { return moves_ >= 2; }, 2000));
}

TEST_F(GlobeWidgetTest, PaintsOnlyTheDiscWhileItTurnsAndNothingUnseen) {
    globe_.resize(400, 230);
    tests::PaintedAreas areas(globe_);
    globe_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&globe_));
    ASSERT_TRUE(QTest::qWaitFor([&] { return areas.list.size() >= 3; }, 2000));
    EXPECT_EQ(areas.list.front(), globe_.rect());
    const QRect disc(200 - 102, 115 - 102, 204, 204);
    EXPECT_TRUE(areas.list.back().contains(disc));
    EXPECT_TRUE(disc.adjusted(-1, -1, 1, 1).contains(areas.list.back()));

    // The label of a target at the rim sticks out of the disc.
    globe_.setTarget(engine::LatLon{0, 80}, "Un nome lungo");
    areas.list.clear();
    ASSERT_TRUE(QTest::qWaitFor([&] { return areas.list.size() >= 3; }, 2000));
    EXPECT_TRUE(areas.list.back().contains(disc.adjusted(-40, -13, 40, 10)));
    EXPECT_NE(areas.list.back(), globe_.rect());

    for (const bool minimized : {false, true}) {
        globe_.showNormal();
        QTest::qWait(60);
        minimized ? globe_.showMinimized() : globe_.hide();
        QTest::qWait(20);
        areas.list.clear();
        QTest::qWait(150);
        EXPECT_TRUE(areas.list.empty()) << (minimized ? "minimized" : "hidden");
    }
}

TEST_F(GlobeWidgetTest, AsksForTheCountriesOnceItIsPaintedAndUntilThereAreSome) {
    globe_.grab();
    globe_.grab();
    EXPECT_EQ(ringRequests_, 0) << "the first frame waits for nothing";
    const auto requestsOncePainted = [this] {
        globe_.grab();
        QCoreApplication::processEvents();
        return ringRequests_;
    };
    EXPECT_EQ(requestsOncePainted(), 1);
    rings_ = {{{0, 0}, {0, 10}}};
    globe_.show();
    EXPECT_EQ(requestsOncePainted(), 2);
    globe_.hide();
    globe_.show();
    EXPECT_EQ(requestsOncePainted(), 2);
}

TEST_F(GlobeWidgetTest, ShowsAndTellsItsCenterAndItsTarget) {
    globe_.setCenter({0.35, 12});
    EXPECT_EQ(globe_.center(), (LatLonRadians{0.35, 12}));
    EXPECT_EQ(moves_, 0) << "who sets the center knows it";
    EXPECT_TRUE(globe_.accessibleDescription().startsWith("Nessun luogo segnato."));
    globe_.setTarget(engine::LatLon{41.89, -12.51}, "Roma");
    EXPECT_TRUE(globe_.accessibleDescription().startsWith(
        QStringLiteral("Luogo segnato: Roma, 41,9° nord, 12,5° ovest.")))
        << globe_.accessibleDescription().toStdString();
    globe_.setTarget(engine::LatLon{41.89, -12.51}, std::string(1'000'000, 'x'));
    EXPECT_LT(globe_.accessibleDescription().size(), 500);
    globe_.setCenter({});
    globe_.setTarget(engine::LatLon{0, 0}, std::nullopt);
    const QImage picture = globe_.grab().toImage();
    EXPECT_EQ(picture.pixelColor(2, 227), QColor("#0c1d2d"));
    EXPECT_EQ(picture.pixelColor(115, 115), QColor(255, 59, 48));
    EXPECT_NE(picture.pixelColor(12, 12), QColor("#0c1d2d")) << "the hint's box";
}

}  // namespace
}  // namespace kalvo::geo
