#include "ui/kalvo_style.h"

#include <tuple>

#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTest>
#include <QVBoxLayout>

#include "ui/combo_box.h"
#include "ui/theme.h"

namespace kalvo::ui {
namespace {

/// Gives the application the look that a desktop of these colors asks for.
void applyTheme(const QColor& window, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    QApplication::setPalette(palette);
    Theme::apply(base::Bundle(KALVO_SOURCE_DIR "/resources"));
}

QColor blended(const QColor& top, const QColor& ground) {
    const auto mix = [&](int over, int under) {
        return (over * top.alpha() + under * (255 - top.alpha())) / 255;
    };
    return {mix(top.red(), ground.red()), mix(top.green(), ground.green()),
            mix(top.blue(), ground.blue())};
}

TEST(ThemeTest, EveryTextCanBeReadOnItsGround) {
    using Desktop = std::tuple<QColor, QColor, double, double>;
    // The least contrast of texts, and of fields' borders against what lies around them.
    for (const auto& [window, text, leastText, leastBorder] :
         {Desktop{0xf0f0f0, 0x202020, 4.5, 1}, Desktop{0x202020, 0xf0f0f0, 4.5, 1},
          Desktop{Qt::white, Qt::black, 7, 3}, Desktop{Qt::black, Qt::white, 7, 3}}) {
        applyTheme(window, text);
        const Theme& theme = Theme::current();
        EXPECT_EQ(theme.dark, window.lightness() < 128);
        for (const QColor& border : {theme.fieldBorder, theme.thumbBorder}) {
            EXPECT_GE(contrastRatio(border, theme.field), leastBorder);
            EXPECT_GE(contrastRatio(border, theme.track), leastBorder);
        }
        EXPECT_GE(contrastRatio(theme.text, theme.warningFill), 4.5);
        EXPECT_GE(contrastRatio(theme.orangeText, theme.warningFill), 4.5);
        for (const QColor& ground : {theme.window, theme.sidebar, theme.field}) {
            for (const QColor& color : {theme.text, theme.secondaryText, theme.tertiaryText,
                                        theme.brandText, theme.orangeText}) {
                EXPECT_GE(contrastRatio(color, ground), leastText)
                    << color.name().toStdString() << " on " << ground.name().toStdString();
            }
        }
        for (const QColor& fill : {theme.accent, theme.accentHover, theme.accentPressed}) {
            EXPECT_GE(contrastRatio(Qt::white, fill), 4.5) << fill.name().toStdString();
        }
        EXPECT_GE(contrastRatio(theme.secondaryText, theme.track), 4.5);
        for (const QColor& tint : {theme.windBox, theme.solarBox}) {
            EXPECT_GE(contrastRatio(theme.text, blended(tint, theme.sidebar)), 4.5);
            EXPECT_GE(contrastRatio(theme.orangeText, blended(tint, theme.window)), 4.5);
        }
    }
}

class StyleTest : public testing::Test {
 protected:
    StyleTest() {
        applyTheme(QColor(0xf0f0f0), QColor(0x202020));
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&button);
        column->addWidget(&field);
        window.resize(240, 200);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    QWidget window;
    QPushButton button{"Copia"};
    QLineEdit field;
};

TEST_F(StyleTest, TheRingFollowsTheKeyboardAndInAFieldTheMouseToo) {
    // The middle of the upper edge.
    const auto hasRing = [](QWidget& control) {
        return control.grab().toImage().pixelColor(control.width() / 2, 0) ==
               Theme::current().brandText;
    };
    EXPECT_FALSE(hasRing(field));
    QTest::mouseClick(&field, Qt::LeftButton);
    EXPECT_TRUE(hasRing(field));
    QTest::keyClick(&field, Qt::Key_Backtab);
    EXPECT_TRUE(hasRing(button));
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_TRUE(button.hasFocus());
    EXPECT_FALSE(hasRing(button));
}

TEST_F(StyleTest, MnemonicsAreUnderlinedWhileAltIsHeld) {
    const auto hint = [] { return QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut); };
    EXPECT_EQ(hint(), 0);
    QMenu menu;
    menu.addAction("&Esci");
    QTest::keyPress(&window, Qt::Key_Alt, Qt::AltModifier);
    EXPECT_EQ(hint(), 1);
    menu.popup(QPoint());
    QTest::keyRelease(&menu, Qt::Key_Alt);
    EXPECT_EQ(hint(), 1) << "an open menu goes on showing its own";
    menu.close();
    EXPECT_EQ(hint(), 0);
}

TEST_F(StyleTest, AScrollBarIsAThumbAndNothingElse) {
    QScrollBar bar(Qt::Vertical);
    bar.resize(11, 200);
    bar.setRange(0, 300);
    bar.setPageStep(100);
    const auto thumbAtEndOf = [&](int maximum) {
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Vertical;
        option.maximum = option.sliderPosition = maximum;
        option.pageStep = 100;
        return QApplication::style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                     QStyle::SC_ScrollBarSlider, &bar);
    };
    EXPECT_EQ(thumbAtEndOf(300), QRect(0, 150, 11, 50));
    EXPECT_EQ(thumbAtEndOf(2'000'000'000).bottom(), 199) << "must not overflow";
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(5, 195));
    EXPECT_EQ(bar.value(), 100) << "a click beside the thumb moves by a page";
}

/// Counts what a view asks of a long list.
class CountingList final : public QAbstractListModel {
 public:
    [[nodiscard]] int rowCount(const QModelIndex&) const override { return 8000; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        ++asked;
        return role == Qt::DisplayRole ? QVariant(QString::number(index.row())) : QVariant();
    }
    mutable int asked = 0;
};

TEST_F(StyleTest, ALongPickerOpensWithoutLookingAtEveryEntry) {
    CountingList list;
    ComboBox picker;
    picker.setModel(&list);
    picker.longestRows = [] { return std::vector{7999}; };
    picker.show();
    picker.setCurrentIndex(4000);
    picker.showPopup();
    QApplication::processEvents();
    ASSERT_TRUE(picker.view()->isVisible());
    EXPECT_LT(list.asked, 800);
    QTest::keyClicks(picker.view(), "6543");
    EXPECT_EQ(picker.view()->currentIndex().row(), 6543);
    const QRect row = picker.view()->visualRect(picker.view()->currentIndex());
    EXPECT_NEAR(row.center().y(), picker.view()->viewport()->rect().center().y(), 26);
    picker.hidePopup();
}

TEST_F(StyleTest, AnEntryThatDoesNotFitKeepsWhatTellsNamesakesApart) {
    const QFontMetrics metrics(font(FontStyle::kBody));
    const QString label = "Llanfairpwllgwyngyllgogerychwyrndrobwll (Wales) [lat: 53.2, lon: -4.2]";
    const int whole = metrics.horizontalAdvance(label);
    EXPECT_EQ(elidedEntry(label, metrics, whole), label);
    for (const int width : {whole - 1, whole / 2, 80}) {
        const QString shown = elidedEntry(label, metrics, width);
        EXPECT_LE(metrics.horizontalAdvance(shown), width + 1);
        EXPECT_EQ(shown.endsWith(QString::fromUtf8("… (Wales) [lat: 53.2, lon: -4.2]")),
                  width > 80);
    }

    ComboBox picker;
    picker.addItems({label + label, "Roma"});
    picker.resize(200, 31);
    picker.show();
    picker.showPopup();
    EXPECT_EQ(picker.view()->parentWidget()->width(), 480);
    EXPECT_EQ(picker.elidedText(), label + label);
    picker.hidePopup();
}

}  // namespace
}  // namespace kalvo::ui
