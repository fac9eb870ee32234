#include "charts/qt/details_notebook_widget.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>

#include "charts/qt/chart_widget.h"
#include "charts/qt/pv_estimate_panel.h"
#include "tests/support/recording_clipboard.h"
#include "ui/divider.h"

namespace kalvo::charts {
namespace {

class DetailsNotebookTest : public testing::Test {
 protected:
    DetailsNotebookTest()
        : view{0,  {{"Gen", {1, 4, 7, 9, 6, 3, 1}}},    {{0, {10}}},
               {}, "Stima <b>solare</b>\nseconda riga", "Produzione"},
          widget(clipboard) {
        widget.setView(view);
        resizeTo(1000);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    }

    /// The panel's visible parts of a kind, with their places in the panel.
    template <class Part>
    [[nodiscard]] std::vector<QRect> places() const {
        std::vector<QRect> found;
        for (const Part* part : widget.findChildren<Part*>()) {
            if (!part->isVisible()) continue;
            found.emplace_back(part->mapTo(&widget, QPoint()), part->size());
        }
        return found;
    }

    void resizeTo(int width) {
        widget.setAvailableWidth(width);
        widget.resize(width, 400);
        // A layout that changes the height of its widget asks for another round.
        for (int round = 0; round < 4; ++round) QApplication::processEvents();
    }

    /// The narrowest panel that shows its content side by side.
    int threshold() {
        int narrow = 600;
        int wide = 1300;
        while (wide - narrow > 1) {
            const int middle = (narrow + wide) / 2;
            resizeTo(middle);
            (places<ChartWidget>().front().height() == 161 ? wide : narrow) = middle;
        }
        return wide;
    }

    [[nodiscard]] QTableWidget& table() const { return *widget.findChild<QTableWidget*>(); }
    [[nodiscard]] QPushButton& copyButton() const { return *widget.findChild<QPushButton*>(); }

    tests::RecordingClipboard clipboard;
    DetailsNotebookView view;
    DetailsNotebookWidget widget;
};

TEST(DetailsNotebook, StacksOnlyWhatIsCompact) {
    EXPECT_EQ(arrangementFor(HorizontalSizeClass::kCompact), Arrangement::kStacked);
    EXPECT_EQ(arrangementFor(HorizontalSizeClass::kRegular), Arrangement::kSideBySide);
    EXPECT_EQ(arrangementFor(std::nullopt), Arrangement::kSideBySide);
}

TEST_F(DetailsNotebookTest, StacksTheWindViewWhereItIsNarrow) {
    resizeTo(600);
    const auto charts = places<ChartWidget>();
    ASSERT_EQ(charts.size(), 2u);
    EXPECT_LT(places<QTableWidget>().front().bottom(), charts[0].top());
    // A chart's border takes half a point on each side. Between the charts are 20 points, the title
    // of the rose and 6 points.
    const int width = widget.viewport()->width() - 32;
    EXPECT_EQ(charts[0], QRect(16, charts[0].top(), width, 201));
    EXPECT_EQ(charts[1], QRect(16, charts[1].top(), width, 221));
    const QLabel title("Rosa dei Venti");
    EXPECT_GT(charts[1].top() - charts[0].bottom(), 26 + title.fontMetrics().height() / 2);
    EXPECT_GT(widget.verticalScrollBar()->maximum(), 0);
}

TEST_F(DetailsNotebookTest, StandsSideBySideFromWhereNothingIsCut) {
    for (const int width : {threshold(), 1250}) {
        resizeTo(width);
        const auto charts = places<ChartWidget>();
        ASSERT_EQ(charts.size(), 2u);
        EXPECT_LT(places<QTableWidget>().front().right(), charts[0].left());
        EXPECT_EQ(charts[1].left() - charts[0].right() - 1, 12);
        EXPECT_EQ(charts[0].top(), charts[1].top());
        EXPECT_EQ(charts[1].height(), 161);
        EXPECT_GE(charts[0].width(), 266);
        EXPECT_TRUE(width < 1250 || charts[0].width() == charts[1].width());
        EXPECT_LE(charts[1].right() + 8, widget.viewport()->width());
        EXPECT_EQ(table().horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(widget.horizontalScrollBar()->maximum(), 0);
    }
}

TEST_F(DetailsNotebookTest, ShowsThePhotovoltaicViewForAnyOtherTab) {
    for (const int tab : {1, 7, -1}) {
        view.activeDetailsTab = tab;
        widget.setView(view);
        for (const auto& [width, height] : {std::pair{600, 221}, std::pair{1200, 181}}) {
            resizeTo(width);
            const auto charts = places<ChartWidget>();
            ASSERT_EQ(charts.size(), 1u) << tab;
            EXPECT_EQ(charts[0].height(), height) << tab;
            EXPECT_TRUE(places<QTableWidget>().empty()) << tab;
        }
    }
}

TEST_F(DetailsNotebookTest, GrowsWithItsTexts) {
    view.activeDetailsTab = 1;
    const auto showTexts = [&](const std::string& details, int width) {
        view.pvDetailsText = details;
        widget.setView(view);
        resizeTo(width);
        return widget.widget()->height();
    };
    for (const int width : {300, 1200}) {
        const int ordinary = showTexts("Stima <b>solare</b>\nseconda riga", width);
        EXPECT_LE(showTexts("", width), ordinary);
        std::string lines;
        for (int i = 0; i < 60; ++i) lines += "riga\n";
        EXPECT_GT(showTexts(lines, width), ordinary + 300);
        EXPECT_GT(widget.verticalScrollBar()->maximum(), 0);
        // A figure of thousands of digits wraps instead of widening the panel.
        EXPECT_GT(showTexts(std::string(6000, '9'), width), ordinary);
        EXPECT_EQ(widget.horizontalScrollBar()->maximum(), 0);
    }
}

TEST_F(DetailsNotebookTest, TableIsReadCellByCell) {
    QAccessibleTableInterface* cells =
        QAccessible::queryAccessibleInterface(&table())->tableInterface();
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(cells->columnDescription(0), "Velocità");
    EXPECT_EQ(cells->columnDescription(12), "Dic");
    EXPECT_EQ(cells->rowCount(), 7);
    EXPECT_EQ(cells->cellAt(3, 0)->text(QAccessible::Name), "10-20 km/h");
    EXPECT_EQ(cells->cellAt(3, 1)->text(QAccessible::Name), "9");
    EXPECT_EQ(cells->cellAt(6, 12)->text(QAccessible::Name), "0");
    EXPECT_EQ(table().item(6, 0)->data(Qt::DecorationRole).value<QColor>(), QColor("#ffd600"));
}

TEST_F(DetailsNotebookTest, TableScrollsWhereItIsNarrowAndLeavesTheWheelToThePanel) {
    resizeTo(330);
    EXPECT_GT(table().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(table().verticalScrollBar()->maximum(), 0);
    view.currentDistribution["Feb"] = {INT64_MAX, INT64_MIN};
    widget.setView(view);
    resizeTo(600);
    EXPECT_GT(table().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(table().item(1, 2)->text(), "-9223372036854775808");
    const QPointF middle(100, 80);
    QWheelEvent wheel(middle, table().viewport()->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(table().viewport(), &wheel);
    EXPECT_FALSE(wheel.isAccepted());
}

TEST_F(DetailsNotebookTest, CopiesASelectedBlockWithItsHeadings) {
    const auto at = [this](int row, int column) {
        return table().visualItemRect(table().item(row, column)).center();
    };
    const auto copied = [this] {
        clipboard.contents = "nothing";
        QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
        return clipboard.contents;
    };
    EXPECT_EQ(copied(), "nothing");
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, at(3, 1));
    QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::ShiftModifier, at(4, 2));
    EXPECT_EQ(copied(), "Velocità\tGen\tFeb\n10-20 km/h\t9\t0\n20-30 km/h\t6\t0");
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, at(2, 0));
    EXPECT_EQ(copied(),
              "Velocità\tGen\tFeb\tMar\tApr\tMag\tGiu\tLug\tAgo\tSet\tOtt\tNov\tDic\n"
              "5-10 km/h\t7\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0");
    QHeaderView& header = *table().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(1) + 5, 5});
    EXPECT_TRUE(copied().starts_with("Velocità\tGen\n< 2 km/h\t1\n"));
    QTest::keyClick(&table(), Qt::Key_A, Qt::ControlModifier);
    const std::string all = copied();
    QTest::mouseClick(&copyButton(), Qt::LeftButton);
    EXPECT_EQ(all, clipboard.contents) << "all is what the button copies";
    QTest::keyClick(&table(), Qt::Key_Escape);
    EXPECT_EQ(copied(), "nothing");
}

TEST_F(DetailsNotebookTest, TheEstimateFillsItsWidthStackedAndHugsItsTextsSideBySide) {
    view.activeDetailsTab = 1;
    widget.setView(view);
    resizeTo(600);
    EXPECT_EQ(places<PvEstimatePanel>().front().width(), places<ChartWidget>().front().width());
    EXPECT_EQ(places<ui::Divider>().size(), 1u);
    resizeTo(1200);
    const QRect panel = places<PvEstimatePanel>().front();
    EXPECT_LT(panel.width(), 300);
    EXPECT_LT(std::abs(panel.center().x() - (8 + (1200 - 32) / 4)), 12) << "centered in its half";
    EXPECT_TRUE(places<ui::Divider>().empty());
}

TEST_F(DetailsNotebookTest, NoticeOfACopyEndsTwoSecondsAfterTheFirstPress) {
    EXPECT_EQ(copyButton().text(), "Copia Dati Tabella");
    EXPECT_FALSE(copyButton().icon().isNull());
    QElapsedTimer sinceFirstPress;
    sinceFirstPress.start();
    QTest::mouseClick(&copyButton(), Qt::LeftButton);
    EXPECT_EQ(copyButton().text(), "Copiato!");
    EXPECT_TRUE(clipboard.contents.starts_with("Velocità\tGen\t"));
    QTest::qWait(1500);
    QTest::mouseClick(&copyButton(), Qt::LeftButton);
    view.currentDistribution.clear();
    widget.setView(view);
    EXPECT_EQ(copyButton().text(), "Copiato!");
    EXPECT_TRUE(QTest::qWaitFor([&] { return copyButton().text() == "Copia Dati Tabella"; }, 1500));
    EXPECT_GE(sinceFirstPress.elapsed(), 1990);
    EXPECT_LT(sinceFirstPress.elapsed(), 3000);
}

}  // namespace
}  // namespace kalvo::charts
