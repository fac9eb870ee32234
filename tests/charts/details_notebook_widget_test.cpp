#include "charts/qt/details_notebook_widget.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>

#include "charts/qt/chart_widget.h"
#include "tests/support/recording_clipboard.h"

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

    [[nodiscard]] QTableWidget& table() const { return *widget.findChild<QTableWidget*>(); }
    [[nodiscard]] QPushButton& copyButton() const { return *widget.findChild<QPushButton*>(); }

    tests::RecordingClipboard clipboard;
    DetailsNotebookView view;
    DetailsNotebookWidget widget;
};

TEST_F(DetailsNotebookTest, StacksTheWindViewWhereItIsNarrow) {
    resizeTo(600);
    const auto charts = places<ChartWidget>();
    ASSERT_EQ(charts.size(), 2u);
    EXPECT_LT(places<QTableWidget>().front().bottom(), charts[0].top());
    EXPECT_LT(charts[0].bottom(), charts[1].top());
    EXPECT_EQ(charts[0].width(), widget.viewport()->width() - 32);
    EXPECT_EQ(charts[1].width(), charts[0].width());
    EXPECT_GT(widget.verticalScrollBar()->maximum(), 0);
}

TEST_F(DetailsNotebookTest, StandsSideBySideFromWhereNothingIsCut) {
    int width = 600;
    for (; width < 1300 && places<ChartWidget>()[0].top() != places<ChartWidget>()[1].top();) {
        resizeTo(width += 10);
    }
    const auto charts = places<ChartWidget>();
    EXPECT_LT(places<QTableWidget>().front().right(), charts[0].left());
    EXPECT_LT(charts[0].right(), charts[1].left());
    EXPECT_LE(charts[1].right(), widget.viewport()->width());
    EXPECT_GE(charts[0].width(), 266);
    EXPECT_EQ(table().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(widget.horizontalScrollBar()->maximum(), 0);
}

TEST_F(DetailsNotebookTest, ShowsThePhotovoltaicViewForAnyOtherTab) {
    for (const int tab : {1, 7, -1}) {
        view.activeDetailsTab = tab;
        widget.setView(view);
        EXPECT_EQ(places<ChartWidget>().size(), 1u) << tab;
        EXPECT_TRUE(places<QTableWidget>().empty()) << tab;
    }
}

TEST_F(DetailsNotebookTest, GrowsWithItsTexts) {
    view.activeDetailsTab = 1;
    for (const int width : {300, 1200}) {
        const auto heightFor = [&](const std::string& details) {
            view.pvDetailsText = details;
            widget.setView(view);
            resizeTo(width);
            return widget.widget()->height();
        };
        const int ordinary = heightFor("Stima <b>solare</b>\nseconda riga");
        EXPECT_LE(heightFor(""), ordinary);
        // A figure of thousands of digits wraps instead of widening the panel.
        EXPECT_GT(heightFor(std::string(6000, '9')), ordinary);
        EXPECT_EQ(widget.horizontalScrollBar()->maximum(), 0);
        EXPECT_GT(widget.verticalScrollBar()->maximum(), 0);
    }
}

TEST_F(DetailsNotebookTest, TableIsReadCellByCell) {
    QAccessibleTableInterface* cells =
        QAccessible::queryAccessibleInterface(&table())->tableInterface();
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(cells->columnDescription(12), "Dic");
    EXPECT_EQ(cells->cellAt(3, 0)->text(QAccessible::Name), "10-20 km/h");
    EXPECT_EQ(cells->cellAt(3, 1)->text(QAccessible::Name), "9");
}

TEST_F(DetailsNotebookTest, TableScrollsWhereItIsNarrowAndLeavesTheWheelToThePanel) {
    view.currentDistribution["Feb"] = {INT64_MAX, INT64_MIN};
    widget.setView(view);
    resizeTo(600);
    EXPECT_GT(table().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(table().verticalScrollBar()->maximum(), 0);
    const QPointF at(100, 80);
    QWheelEvent wheel(at, table().viewport()->mapToGlobal(at), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(table().viewport(), &wheel);
    EXPECT_FALSE(wheel.isAccepted());
}

TEST_F(DetailsNotebookTest, CopiesASelectedBlockWithItsHeadings) {
    const auto click = [this](int row, int column, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers,
                          table().visualItemRect(table().item(row, column)).center());
    };
    const auto copied = [this] {
        clipboard.contents = "nothing";
        QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
        return clipboard.contents;
    };
    EXPECT_EQ(copied(), "nothing");
    click(3, 1);
    click(4, 2, Qt::ShiftModifier);
    EXPECT_EQ(copied(), "Velocità\tGen\tFeb\n10-20 km/h\t9\t0\n20-30 km/h\t6\t0");
    click(2, 0);
    EXPECT_TRUE(copied().ends_with("Dic\n5-10 km/h\t7\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0"));
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

TEST_F(DetailsNotebookTest, NoticeOfACopyEndsTwoSecondsAfterTheFirstPress) {
    QElapsedTimer sinceFirstPress;
    sinceFirstPress.start();
    QTest::mouseClick(&copyButton(), Qt::LeftButton);
    QTest::qWait(1500);
    QTest::mouseClick(&copyButton(), Qt::LeftButton);
    view.currentDistribution.clear();
    widget.setView(view);
    EXPECT_EQ(copyButton().text(), "Copiato!");
    EXPECT_TRUE(QTest::qWaitFor([&] { return copyButton().text() == "Copia Dati Tabella"; }, 1500));
    EXPECT_GE(sinceFirstPress.elapsed(), 1990);
}

}  // namespace
}  // namespace kalvo::charts
