#include "charts/qt/chart_widget.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>
#include <QToolTip>

#include "tests/support/painted_areas.h"

namespace kalvo::charts {
namespace {

const WindChartView kWind{{{"Gen", {0, 0, 0, 15, 0, 0, 10}}}};

// The plot of a chart 650 wide has 50 points a month.
class ChartWidgetTest : public testing::Test {
 protected:
    ChartWidgetTest() : widget("Grafico", kWind) {
        widget.setChartHeight(200);
        widget.resize(651, 201);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    }
    void TearDown() override { QToolTip::hideText(); }

    ChartWidget widget;
};

TEST_F(ChartWidgetTest, TellsWhatIsUnderThePointer) {
    QTest::mouseMove(&widget, {110, 100});
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::isVisible(); }));
    EXPECT_TRUE(QToolTip::text().contains("Febbraio"));
    EXPECT_TRUE(QToolTip::text().contains("&lt; 2 km/h: 0 giorni"));
}

TEST_F(ChartWidgetTest, IsAGraphicWithASummaryToScreenReaders) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&widget);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Graphic);
    EXPECT_EQ(accessible->text(QAccessible::Name), "Grafico");
    EXPECT_TRUE(accessible->text(QAccessible::Description).contains("Gennaio (10 giorni)"));
    widget.setChart(WindRoseChartView{{{4, {7}}}});
    EXPECT_TRUE(accessible->text(QAccessible::Description).contains("da Est (7 ore l'anno)"));
}

TEST_F(ChartWidgetTest, RepaintsOnlyForAnotherChart) {
    QApplication::processEvents();
    tests::PaintedAreas painted(widget);
    widget.setChart(kWind);
    QTest::qWait(50);
    EXPECT_TRUE(painted.list.empty());
    widget.setChart(WindChartView{});
    EXPECT_TRUE(QTest::qWaitFor([&] { return painted.list.size() == 1; }));
}

TEST_F(ChartWidgetTest, CopiesItselfAsAPicture) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {100, 100},
                            widget.mapToGlobal(QPoint(100, 100)));
    QApplication::sendEvent(&widget, &event);
    auto* menu = widget.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    menu->actions().front()->trigger();
    menu->close();
    const QImage image = QApplication::clipboard()->image();
    EXPECT_EQ(image.size(), QSize(1302, 402)) << "twice the size";
    EXPECT_EQ(image.pixelColor(121, 320), QColor("#ffd600")) << "January's strongest wind";
}

}  // namespace
}  // namespace kalvo::charts
