#include "app/kalvo_tresk_app.h"

#include <gmock/gmock.h>
#include <QLineEdit>
#include <QMenuBar>

#include "app/about_panel.h"
#include "app/application_icon.h"
#include "tests/app/screen_fixture.h"
#include "tests/support/temporary_folder.h"

namespace kalvo::app {
namespace {

using testing::ElementsAre;

/// The items of a menu as they are read.
std::vector<std::string> itemsOf(const QMenu& menu) {
    std::vector<std::string> items;
    for (const QAction* action : menu.actions()) {
        if (!action->isSeparator()) items.push_back(action->iconText().toStdString());
    }
    return items;
}

QMenu* menuOf(const QMainWindow& window, int index) {
    return window.menuBar()->actions().at(index)->menu();
}

QAction* actionFor(const QMainWindow& window, const QKeySequence& shortcut) {
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->shortcut() == shortcut) return action;
    }
    return nullptr;
}

using ApplicationTest = ScreenTest;

TEST_F(ApplicationTest, HasThreeMenus) {
    ASSERT_EQ(window->menuBar()->actions().size(), 3);
    EXPECT_EQ(window->menuBar()->actions()[0]->iconText(), "Kalvo Tresk");
    EXPECT_EQ(window->menuBar()->actions()[1]->iconText(), "Visualizza & Mappe");
    EXPECT_EQ(window->menuBar()->actions()[2]->iconText(), "Privacy & Info");
    EXPECT_EQ(itemsOf(*menuOf(*window, 0)).front(), "Informazioni su Kalvo Wind & Solar");
    EXPECT_THAT(itemsOf(*menuOf(*window, 1)),
                ElementsAre("Mappa Regioni", "Mappa Province", "Mappa del Vento"));
    EXPECT_EQ(itemsOf(*menuOf(*window, 2)).size(), 1u);
}

TEST_F(ApplicationTest, AMapShortcutPostsItsNotificationAndShowsItsMap) {
    std::vector<std::string> posted;
    std::vector<platform::NotificationCenter::Observation> observations;
    for (const char* name : {"SelectTab0", "SelectTab1", "SelectTab2"}) {
        observations.push_back(
            notifications.observe(name, [&posted, name] { posted.emplace_back(name); }));
    }
    const auto press = [this](Qt::Key key) { QTest::keyClick(window, key, Qt::ControlModifier); };
    press(Qt::Key_2);
    EXPECT_EQ(state().activeTab, 1);
    press(Qt::Key_3);
    EXPECT_EQ(state().activeTab, 2);
    press(Qt::Key_1);
    EXPECT_EQ(state().activeTab, 0);
    EXPECT_THAT(posted, ElementsAre("SelectTab1", "SelectTab2", "SelectTab0"));
}

TEST_F(ApplicationTest, EveryWindowHasAStateOfItsOwn) {
    QMainWindow* first = window;
    actionFor(*first, QKeySequence(Qt::CTRL | Qt::Key_N))->trigger();
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

    const QPointer<QMainWindow> gone(second);
    actionFor(*second, QKeySequence(Qt::CTRL | Qt::Key_W))->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(gone.isNull());
    EXPECT_TRUE(first->isVisible());
}

TEST_F(ApplicationTest, ControlFGoesToTheSearchField) {
    auto* search = named<QLineEdit>(QString::fromUtf8("Cerca Località"));
    ASSERT_FALSE(search->hasFocus());
    QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(search->hasFocus());
}

TEST_F(ApplicationTest, TheAboutPanelNamesTheApplicationAndThreeCredits) {
    menuOf(*window, 0)->actions().first()->trigger();
    auto* panel = qobject_cast<AboutPanel*>(QApplication::activeModalWidget());
    ASSERT_NE(panel, nullptr);
    QStringList texts;
    for (const QLabel* label : panel->findChildren<QLabel*>()) texts << label->text();
    EXPECT_TRUE(texts.contains("Kalvo Tresk"));
    const auto credits = std::find_if(texts.begin(), texts.end(), [](const QString& text) {
        return text.count('\n') == 2 && text.contains("https://www.kalvo.example");
    });
    EXPECT_NE(credits, texts.end());
    panel->close();
}

TEST_F(ApplicationTest, TheWebSiteOpensInTheBrowser) {
    menuOf(*window, 2)->actions().first()->trigger();
    EXPECT_THAT(workspace.opened, ElementsAre("https://www.kalvo.example"));
}

TEST_F(ApplicationTest, TheLastWindowMayCloseWhileADownloadIsUnderWay) {
    session.hold("https://site.test/en/server/search/query3?query=Roma");
    state().searchText = "Roma";
    state().performOnlineSearch();
    screen().redraw();
    EXPECT_EQ(session.heldCount(), 1u);
    delete window;
    window = nullptr;
    EXPECT_EQ(session.heldCount(), 0u);
}

TEST(ApplicationIconTest, IsTheRoundedLogoElseTheIconFileElseNothing) {
    const std::string resources = KALVO_SOURCE_DIR "/resources/";
    const auto copy = [&](const char* name, const tests::TemporaryFolder& folder) {
        std::filesystem::copy_file(resources + name, folder.path() / name);
    };
    tests::TemporaryFolder folder;
    const platform::Bundle bundle(folder.path());
    EXPECT_TRUE(loadApplicationIcon(bundle).isNull());

    copy("AppIcon.icns", folder);
    EXPECT_EQ(loadApplicationIcon(bundle).width(), 512);

    copy("logo_rounded.png", folder);
    EXPECT_EQ(loadApplicationIcon(bundle).width(), 256);

    folder.write("logo_rounded.png", "no picture");
    EXPECT_TRUE(loadApplicationIcon(bundle).isNull()) << "a faulty file is not looked past";
}

TEST(ApplicationIconTest, ABrokenIconFileIsNoIcon) {
    tests::TemporaryFolder folder;
    const platform::Bundle bundle(folder.path());
    using namespace std::string_literals;
    for (const std::string& file :
         {""s, "icns"s, "icns\0\0\0\x08"s, "icns\0\0\0\x20ic07\0\0\0\x00"s,
          "icns\0\0\0\x20ic07\xff\xff\xff\xff\x89PNG\r\n\x1a\n"s,
          "icns\0\0\0\x20ic07\0\0\0\x10\x89PNG\r\n\x1a\n"s}) {
        folder.write("AppIcon.icns", file);
        EXPECT_TRUE(loadApplicationIcon(bundle).isNull());
    }
}

}  // namespace
}  // namespace kalvo::app
