#include "app/qt/detail_column.h"

#include <QtTest/qtestspontaneevent.h>
#include <gmock/gmock.h>
#include <QScrollBar>

#include "tests/app/screen_fixture.h"
#include "ui/notice.h"

namespace kalvo::app {
namespace {

using testing::StartsWith;

class DetailColumnTest : public ScreenTest {
 protected:
    /// The map that is shown; null while the globe is.
    [[nodiscard]] geo::MapWidget* map() const {
        return dynamic_cast<geo::MapWidget*>(window->findChild<MapArea*>()->currentWidget());
    }
    [[nodiscard]] geo::GlobeWidget* globe() const {
        return dynamic_cast<geo::GlobeWidget*>(window->findChild<MapArea*>()->currentWidget());
    }
    [[nodiscard]] DetailColumn* column() const { return window->findChild<DetailColumn*>(); }
    /// Gives the window a size, whatever the screen of this platform would bound it to.
    void resizeTo(const QSize& size) const {
        window->setMinimumSize(0, 0);
        window->resize(size);
        QApplication::processEvents();
    }
};

TEST_F(DetailColumnTest, EveryMapGetsItsOutlinesAndNoMore) {
    ASSERT_NE(globe(), nullptr);
    click("Mappa Vento");
    EXPECT_NE(globe(), nullptr) << "the map picker does not touch the globe";

    choose("Nazione", "Italia");
    ASSERT_NE(map(), nullptr);
    EXPECT_EQ(map()->view().mapType, geo::MapType::kWind);
    EXPECT_EQ(map()->view().geoData->features.size(), 107u);
    EXPECT_EQ(map()->view().provinceWindMap, state().provinceWindMap);
    EXPECT_EQ(map()->view().targetLat, state().targetLat);

    using enum geo::MapType;
    for (const auto& [button, type, features] :
         {std::tuple{"Mappa Regioni", kRegion, 20u}, {"Mappa Province", kProvince, 107u}}) {
        click(button);
        EXPECT_EQ(map()->view().mapType, type);
        EXPECT_EQ(map()->view().geoData->features.size(), features);
        EXPECT_TRUE(map()->view().provinceWindMap.empty());
    }

    choose("Nazione", "San Marino");
    EXPECT_EQ(map()->view().geoData->features.size(), 9u);
}

TEST_F(DetailColumnTest, ATapOnTheGlobeMarksThePointAndAsksForItsName) {
    ASSERT_NE(globe(), nullptr);
    const double lat = state().globeCenterLat * 180 / M_PI;
    QTest::mouseClick(globe(), Qt::LeftButton, {}, globe()->rect().center());
    ASSERT_TRUE(state().targetLat.has_value());
    EXPECT_NEAR(*state().targetLat, lat, 1);
    EXPECT_THAT(session.requests().at(0).url, StartsWith("https://names.test/reverse?lat="));
}

TEST_F(DetailColumnTest, TheGlobeTurnsTheStateAndTheStateTheGlobe) {
    state().globeCenterLat = 0.7;
    state().globeCenterLon = -1.2;
    screen().redraw();
    EXPECT_DOUBLE_EQ(globe()->center().lat, 0.7);
    EXPECT_DOUBLE_EQ(globe()->center().lon, -1.2);
    globe()->setFocus();
    QTest::keyClick(globe(), Qt::Key_Right);
    EXPECT_NE(state().globeCenterLon, -1.2);
    EXPECT_DOUBLE_EQ(state().globeCenterLon, globe()->center().lon);
}

TEST_F(DetailColumnTest, LeavesTheMapItsHeightAndScrollsInOnePlace) {
    auto* details = window->findChild<charts::DetailsNotebookWidget*>();
    for (const auto& [size, isOnePage] : {std::pair{QSize(640, 480), true},
                                          {QSize(1280, 672), true},
                                          {QSize(1000, 720), false},
                                          {QSize(1320, 900), false}}) {
        resizeTo(size);
        EXPECT_EQ(column()->verticalScrollBar()->maximum() > 0, isOnePage) << size.height();
        EXPECT_FALSE(isOnePage && details->verticalScrollBar()->maximum() > 0) << size.height();
        const MapArea* area = window->findChild<MapArea*>();
        EXPECT_GE(area->height(), 280);
        EXPECT_LE(area->geometry().bottom(), named<QWidget>("Analisi Dettagliata")->y());
        EXPECT_EQ(column()->widget()->width(), column()->viewport()->width());
        EXPECT_GE(isOnePage ? details->height() : 276, details->widget()->height() * isOnePage);
    }
    EXPECT_GE(details->viewport()->height(), details->widget()->height()) << "at 1320 x 900";
}

TEST_F(DetailColumnTest, TheWheelScrollsALowColumnAndZoomsTheMapOfAHighOne) {
    choose("Nazione", "Italia");
    const auto turn = [this](Qt::KeyboardModifiers modifiers) {
        QWheelEvent wheel(QPointF(5, 5), map()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        // Only what seems to come from the desktop is handed on from widget to widget.
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        qApp->notify(map(), &wheel);
        QTest::keyClick(map(), Qt::Key_Plus);
    };
    const auto zoom = [this] { return map()->view().gestures.scale; };
    resizeTo({900, 600});
    turn(Qt::NoModifier);
    EXPECT_GT(column()->verticalScrollBar()->value(), 0);
    EXPECT_DOUBLE_EQ(zoom(), 1.25) << "by the key alone";
    turn(Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(zoom(), 1.25) << "one step out, one in";
    resizeTo({1000, 800});
    turn(Qt::NoModifier);
    EXPECT_DOUBLE_EQ(zoom(), 1.25);
}

TEST_F(DetailColumnTest, SaysWhoseFiguresAreShownAMomentAfterThereIsReason) {
    auto* notice = window->findChild<ui::Notice*>();
    EXPECT_TRUE(notice->isVisible()) << "from the first frame";
    choose("Nazione", "Italia");
    EXPECT_FALSE(notice->isVisible());

    auto* search = named<QLineEdit>(QString::fromUtf8("Cerca Località"));
    QTest::keyClicks(search, "abano t?");
    EXPECT_FALSE(notice->isVisible()) << "typing does not shake the map";
    QTest::keyClick(search, Qt::Key_Backspace);
    QTest::qWait(300);
    EXPECT_FALSE(notice->isVisible()) << "the reason has gone";
    QTest::keyClicks(search, "?");
    EXPECT_TRUE(QTest::qWaitFor([&] { return notice->isVisible(); }, 2000));
    EXPECT_EQ(notice->accessibleName(), "Valori dell'ultimo calcolo: Abano Terme (PD)");
}

}  // namespace
}  // namespace kalvo::app
