#include "ui/segmented_control.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

namespace kalvo::ui {
namespace {

class SegmentedControlTest : public testing::Test {
 protected:
    SegmentedControlTest() {
        control.resize(300, 28);
        title.setBuddy(&control);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    [[nodiscard]] QRadioButton* segment(int index) const {
        return control.findChildren<QRadioButton*>().at(index);
    }

    QWidget window;
    QLabel title{QStringLiteral("&Tipo Turbina"), &window};
    SegmentedControl control{QStringLiteral("Tipo Turbina"), {"1 kW", "2 kW", "3 kW"}, &window};
    QSignalSpy chosen{&control, &SegmentedControl::indexChosen};
};

TEST_F(SegmentedControlTest, AClickAnywhereOnASegmentAndTheArrowsChoose) {
    QTest::mouseClick(segment(2), Qt::LeftButton, {}, QPoint(segment(2)->width() - 2, 2));
    EXPECT_EQ(control.index(), 2);
    // The state may choose without a signal, and the keyboard stops at the chosen segment.
    control.setIndex(1);
    control.setIndex(7);
    EXPECT_EQ(control.index(), 1) << "an index out of range must leave the choice";
    QTest::keyClick(&window, Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(segment(1)->hasFocus());
    EXPECT_FALSE(segment(0)->focusPolicy() & Qt::TabFocus);
    QTest::keyClick(segment(1), Qt::Key_Left);
    EXPECT_TRUE(segment(0)->hasFocus());
    ASSERT_EQ(chosen.count(), 2);
    EXPECT_EQ(chosen[0][0].toInt(), 2);
    EXPECT_EQ(chosen[1][0].toInt(), 0);
}

}  // namespace
}  // namespace kalvo::ui
