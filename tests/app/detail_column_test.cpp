#include "app/qt/detail_column.h"

#include <gmock/gmock.h>

#include "tests/app/screen_fixture.h"

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
    // A point without a name is searched for all the same.
    ASSERT_EQ(session.requests().size(), 2u);
    EXPECT_THAT(session.requests()[0].url, StartsWith("https://names.test/reverse?lat="));
    EXPECT_THAT(session.requests()[1].url, StartsWith("https://site.test/"));
    EXPECT_EQ(named<QLineEdit>(QString::fromUtf8("Cerca Località"))->text(),
              QString::fromUtf8("Località Globale"));
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

TEST_F(DetailColumnTest, TheAnalysisPickerChangesWhatTheDetailsShow) {
    const QString box = "Stima Fotovoltaica (FTV)";
    const auto isShown = [&] {
        for (const QLabel* label : window->findChildren<QLabel*>()) {
            if (label->text() == box) return label->isVisible();
        }
        return false;
    };
    EXPECT_FALSE(isShown());
    click("Analisi Impianto Solare FV");
    EXPECT_EQ(state().activeDetailsTab, 1);
    EXPECT_TRUE(isShown());
}

TEST_F(DetailColumnTest, TheDetailsNeedNoScrollingInAWindowOfOrdinarySize) {
    window->resize(1320, 900);
    QApplication::processEvents();
    auto* details = window->findChild<charts::DetailsNotebookWidget*>();
    EXPECT_GE(details->viewport()->height(), details->widget()->height());
    EXPECT_GE(window->findChild<MapArea*>()->height(), details->height());

    window->resize(1000, 700);
    QApplication::processEvents();
    EXPECT_GE(window->findChild<MapArea*>()->height(), details->height());
    EXPECT_LT(details->viewport()->height(), details->widget()->height());
}

}  // namespace
}  // namespace kalvo::app
