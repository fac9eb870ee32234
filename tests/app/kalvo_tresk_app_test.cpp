#include "app/qt/kalvo_tresk_app.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <QLineEdit>
#include <QMenuBar>

#include "app/qt/about_panel.h"
#include "app/qt/application_icon.h"
#include "tests/app/screen_fixture.h"
#include "tests/support/temporary_folder.h"

namespace kalvo::app {
namespace {

QMenu* menuOf(const QMainWindow& window, int index) {
    return window.menuBar()->actions().at(index)->menu();
}

using ApplicationTest = ScreenTest;

TEST_F(ApplicationTest, TheLastMenuOpensTheWebSite) {
    menuOf(*window, 2)->actions().first()->trigger();
    EXPECT_THAT(urlOpener.opened, testing::ElementsAre("https://www.kalvo.example"));
}

TEST_F(ApplicationTest, AMapShortcutShowsItsMap) {
    for (const int map : {1, 2, 0}) {
        QTest::keyClick(window, static_cast<Qt::Key>(Qt::Key_1 + map), Qt::ControlModifier);
        EXPECT_EQ(state().activeTab, map);
    }
    click("Mappa Vento");
    emit menuOf(*window, 1)->aboutToShow();
    EXPECT_TRUE(menuOf(*window, 1)->actions().at(2)->isChecked());
}

TEST_F(ApplicationTest, EveryWindowHasAStateOfItsOwn) {
    QMainWindow* first = window;
    QTest::keyClick(first, Qt::Key_N, Qt::ControlModifier);
    QMainWindow* second = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (auto* other = qobject_cast<QMainWindow*>(top); other && other != first) second = other;
    }
    ASSERT_NE(second, nullptr);
    choose("Nazione", "Italia");
    auto* otherScreen = qobject_cast<MainScreen*>(second->centralWidget());
    EXPECT_EQ(otherScreen->state().selectedCountry, "Altre località online");

    QApplication::setActiveWindow(second);
    notifications.post("SelectTab2");
    EXPECT_EQ(otherScreen->state().activeTab, 2);
    EXPECT_EQ(state().activeTab, 0);

    session.hold("https://site.test/en/server/search/query3?query=Roma");
    otherScreen->state().searchText = "Roma";
    otherScreen->state().performOnlineSearch();
    EXPECT_EQ(session.heldCount(), 1u);
    const QPointer<QMainWindow> gone(second);
    QTest::keyClick(second, Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(gone.isNull());
    EXPECT_EQ(session.heldCount(), 0u) << "a window takes its downloads with it";
    EXPECT_TRUE(first->isVisible());
}

TEST_F(ApplicationTest, ControlFSearchesAndTheAboutPanelNamesTheWebSite) {
    QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(named<QLineEdit>(QString::fromUtf8("Cerca Località"))->hasFocus());
    menuOf(*window, 0)->actions().first()->trigger();
    auto* panel = qobject_cast<AboutPanel*>(QApplication::activeModalWidget());
    ASSERT_NE(panel, nullptr);
    const auto labels = panel->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel* label) {
        return label->text().contains("https://www.kalvo.example");
    }));
    panel->close();
}

TEST(ApplicationIconTest, IsTheRoundedLogoElseTheIconFileElseNothing) {
    using namespace std::string_literals;
    tests::TemporaryFolder folder;
    const base::Bundle bundle(folder.path());
    EXPECT_TRUE(loadApplicationIcon(bundle).isNull());
    for (const std::string& broken :
         {""s, "icns"s, "icns\0\0\0\x08"s, "icns\0\0\0\x20ic07\0\0\0\x00"s,
          "icns\0\0\0\x20ic07\xff\xff\xff\xff\x89PNG\r\n\x1a\n"s,
          "icns\0\0\0\x20ic07\0\0\0\x10\x89PNG\r\n\x1a\n"s}) {
        folder.write("AppIcon.icns", broken);
        EXPECT_TRUE(loadApplicationIcon(bundle).isNull());
    }
    for (const auto& [name, width] : {std::pair{"AppIcon.icns", 512}, {"logo_rounded.png", 256}}) {
        folder.write(name,
                     base::readFile(KALVO_SOURCE_DIR "/resources/" + std::string(name)).value());
        EXPECT_EQ(loadApplicationIcon(bundle).width(), width);
    }
    folder.write("logo_rounded.png", "no picture");
    EXPECT_TRUE(loadApplicationIcon(bundle).isNull()) << "a faulty file is not looked past";
}

}  // namespace
}  // namespace kalvo::app
