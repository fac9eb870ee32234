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

TEST_F(GlobeWidgetTest, AClickTellsItsPlaceOnceAndADragTurns) {
    showStill();
    QTest::mouseClick(&globe_, Qt::LeftButton, {}, {12, 12});
    QTest::mouseClick(&globe_, Qt::RightButton, {}, {115, 115});
    EXPECT_TRUE(taps_.empty());
    QTest::mouseClick(&globe_, Qt::LeftButton, {}, {165, 115});
    QTest::mouseDClick(&globe_, Qt::LeftButton, {}, {165, 115});
    QTest::mouseRelease(&globe_, Qt::LeftButton, {}, {165, 115});
    ASSERT_EQ(taps_.size(), 1u);
    EXPECT_NEAR(taps_[0].lon, 30, 1e-9);
    EXPECT_EQ(moves_, 0);

    QTest::mousePress(&globe_, Qt::LeftButton, {}, {100, 100});
    QTest::mouseMove(&globe_, {100, 150});
    EXPECT_GT(globe_.center().lat, 0);
    QTest::mouseRelease(&globe_, Qt::LeftButton, {}, {100, 150});
    QTest::mouseMove(&globe_, {50, 50});
    EXPECT_EQ(taps_.size(), 1u);
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
    globe_.clearFocus();
    globe_.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(hasRing());
    globe_.clearFocus();
    EXPECT_FALSE(hasRing());
}

TEST_F(GlobeWidgetTest, TurnsOnlyWhileItIsShown) {
    const auto turns = [this] {
        moves_ = 0;
        return QTest::qWaitFor([this] { return moves_ >= 2; }, globe_.isVisible() ? 2000 : 120);
    };
    globe_.show();
    EXPECT_TRUE(turns());
    globe_.hide();
    EXPECT_FALSE(turns());
    // Stopped by a drag and hidden: shown again it turns at once, as a new one would.
    globe_.show();
    QTest::keyClick(&globe_, Qt::Key_Left);
    globe_.hide();
    globe_.show();
    EXPECT_TRUE(turns());
}

TEST_F(GlobeWidgetTest, PaintsOnlyTheDiscAndItsLabelWhileItTurns) {
    globe_.resize(400, 230);
    tests::PaintedAreas areas(globe_);
    globe_.show();
    const auto lastArea = [&] {
        areas.list.clear();
        EXPECT_TRUE(QTest::qWaitFor([&] { return areas.list.size() >= 3; }, 2000));
        return areas.list.back();
    };
    const QRect disc(200 - 102, 115 - 102, 204, 204);
    EXPECT_TRUE(lastArea().contains(disc));
    EXPECT_TRUE(disc.adjusted(-1, -1, 1, 1).contains(lastArea()));
    // The label of a target at the rim sticks out of the disc.
    globe_.setTarget(engine::LatLon{0, 80}, "Un nome lungo");
    EXPECT_TRUE(lastArea().contains(disc.adjusted(-40, -13, 40, 10)));
    EXPECT_NE(lastArea(), globe_.rect());
}

TEST_F(GlobeWidgetTest, AsksForTheCountriesOnceItIsPaintedAndUntilThereAreSome) {
    const auto requestsOncePainted = [this] {
        globe_.hide();
        globe_.show();
        globe_.grab();
        const int before = ringRequests_;
        QCoreApplication::processEvents();
        EXPECT_TRUE(before == 0 || !rings_.empty()) << "the first frame waits for nothing";
        return ringRequests_;
    };
    EXPECT_EQ(requestsOncePainted(), 1);
    rings_ = {{{0, 0}, {0, 10}}};
    EXPECT_EQ(requestsOncePainted(), 2);
    EXPECT_EQ(requestsOncePainted(), 2);
}

TEST_F(GlobeWidgetTest, ShowsAndTellsItsTarget) {
    EXPECT_TRUE(globe_.accessibleDescription().startsWith("Nessun luogo segnato."));
    globe_.setTarget(engine::LatLon{41.89, -12.51}, "Roma");
    EXPECT_TRUE(
        globe_.accessibleDescription().startsWith("Luogo segnato: Roma, 41,9° nord, 12,5° ovest."));
    globe_.setTarget(engine::LatLon{0, 0}, std::string(1'000'000, 'x'));
    EXPECT_LT(globe_.accessibleDescription().size(), 500);
    globe_.setTarget(engine::LatLon{0, 0}, std::nullopt);
    const QImage picture = globe_.grab().toImage();
    EXPECT_EQ(picture.pixelColor(115, 115), QColor(255, 59, 48));
    EXPECT_NE(picture.pixelColor(12, 12), picture.pixelColor(2, 227)) << "the hint's box";
}

}  // namespace
}  // namespace kalvo::geo
