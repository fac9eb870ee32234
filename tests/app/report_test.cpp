#include <gmock/gmock.h>
#include <QClipboard>
#include <QMessageBox>

#include "app/qt/report_window.h"
#include "app/report_content.h"
#include "charts/qt/chart_widget.h"
#include "tests/app/screen_fixture.h"
#include "tests/support/temporary_folder.h"

namespace kalvo::app {
namespace {

class ReportTest : public ScreenTest {
 protected:
    /// The menu item, found by its shortcut.
    [[nodiscard]] QAction* item() const {
        for (QAction* action : window->findChildren<QAction*>()) {
            if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_P)) return action;
        }
        throw std::runtime_error("no item has the shortcut");
    }
    [[nodiscard]] ReportWindow* reportWindow() const { return window->findChild<ReportWindow*>(); }
    void showTrapani() {
        choose("Nazione", "Italia");
        state().selectedLocationLabel = "Trapani (TP) - LICT";
        screen().redraw();
    }
};

TEST_F(ReportTest, TellsWhatTheResultShowsAndRestsOn) {
    showTrapani();
    state().selectedTurbineKW = 3;
    state().quantityString = "4";
    screen().redraw();
    const report::Report report = makeReport(state(), services, std::chrono::system_clock::now());
    using engine::CalculationEngine;
    EXPECT_THAT(
        state().resultText,
        testing::HasSubstr("Lorda: " + CalculationEngine::formatKWh(report.turbinesGross())));
    EXPECT_THAT(state().pvResultText,
                testing::HasSubstr("Lorda: " + CalculationEngine::formatKWh(report.plantsGross())));
    engine::WholeNumber sum = 0;
    for (const engine::WholeNumber& month : report.windMonths.value().kwh) sum += month;
    EXPECT_EQ(sum, engine::WholeNumber(report.turbinesGross()));
    ASSERT_TRUE(report.stationWind);
    EXPECT_EQ(report.stationWind->station, "Trapani Birgi");
    EXPECT_EQ(report.stationWind->years, "1965–2023");
    EXPECT_EQ(report.stationWind->hubHeight, 15);
    // The figure of the estimate itself lies between those of its error.
    EXPECT_LT(report.stationWind->lowest, 0.7 * report.turbinesGross());
    EXPECT_GT(report.stationWind->highest, 0.7 * report.turbinesGross());
    EXPECT_TRUE(report.map && !report.isOnTheGlobe && !report.downloaded);
}

TEST_F(ReportTest, IsThereWhileAResultIsShownAndFollowsItWhenCalledAgain) {
    EXPECT_FALSE(item()->isEnabled());
    showTrapani();
    EXPECT_TRUE(item()->isEnabled());
    item()->trigger();
    ReportWindow* const opened = reportWindow();
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->windowTitle(), "Relazione: Trapani (TP)");
    state().selectedLocationLabel = "Milano (MI) - LIML";
    screen().redraw();
    EXPECT_EQ(opened->windowTitle(), "Relazione: Trapani (TP)");
    item()->trigger();
    EXPECT_EQ(reportWindow(), opened);
    EXPECT_EQ(opened->windowTitle(), "Relazione: Milano (MI)");
    state().quantityString = "0";
    screen().redraw();
    EXPECT_FALSE(item()->isEnabled());
}

TEST_F(ReportTest, SavesCopiesOpensAndZooms) {
    showTrapani();
    item()->trigger();
    ReportWindow& report = *reportWindow();
    const auto press = [&](const char* text) {
        for (auto* button : report.findChildren<QPushButton*>()) {
            if (button->text().remove('&') == QString::fromUtf8(text)) button->click();
        }
    };
    tests::TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "relazione di prova.pdf";
    report.save(QString::fromStdString(file.string()));
    EXPECT_TRUE(base::readFile(file).value().starts_with("%PDF"));
    press("Apri");
    EXPECT_THAT(urlOpener.opened,
                testing::ElementsAre(testing::EndsWith("relazione%20di%20prova.pdf")));

    report.save(QString::fromStdString((folder.path() / "none" / "x.pdf").string()));
    auto* box = report.findChild<QMessageBox*>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), QString::fromUtf8("La relazione non è stata salvata."));
    EXPECT_FALSE(box->informativeText().isEmpty());
    box->close();

    auto* preview = report.findChild<PagePreview*>();
    const double fitting = preview->scale();
    EXPECT_EQ(preview->shownPage(), 1);
    QTest::keyClick(preview, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(preview->scale(), 1.25 * fitting);
    QTest::keyClick(preview, Qt::Key_End);
    QTest::keyClick(preview, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(preview->scale(), fitting);
    press("Copia immagine");
    // 595.28 points at 200 pixels an inch.
    EXPECT_EQ(QGuiApplication::clipboard()->image().width(), 1654);
}

TEST_F(ReportTest, ACopiedChartTellsItsPlaceOnceThereIsOne) {
    const auto copied = [&] {
        auto* chart = window->findChild<charts::ChartWidget*>();
        return chart->makePicture({charts::WindChartView{}}, 2);
    };
    EXPECT_TRUE(copied().isNull()) << "samples belong to no place";
    showTrapani();
    // The chart of 442.5 points between margins of 16, twice.
    EXPECT_EQ(copied().width(), 949);
}

}  // namespace
}  // namespace kalvo::app
