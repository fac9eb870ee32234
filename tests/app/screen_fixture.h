#pragma once

#include <stdexcept>

#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QAccessible>
#include <QTest>

#include "app/qt/kalvo_tresk_app.h"
#include "tests/app/test_services.h"
#include "tests/support/scripted_session.h"
#include "ui/theme.h"

namespace kalvo::app {

class RecordingUrlOpener final : public base::UrlOpener {
 public:
    bool open(std::string_view address) override {
        opened.emplace_back(address);
        return true;
    }
    std::vector<std::string> opened;
};

/// What a screen reader calls an element: the text of its label, else its own name.
inline QString nameOf(const QAccessibleInterface& face) {
    for (const auto& [label, relation] : face.relations(QAccessible::Label)) {
        if (label->role() == QAccessible::StaticText) return label->text(QAccessible::Name);
    }
    return face.text(QAccessible::Name);
}

inline QString nameOf(QWidget* widget) {
    return nameOf(*QAccessible::queryAccessibleInterface(widget));
}

/// The application with the data it ships with, one window open, and a network that answers from
/// a script.
class ScreenTest : public testing::Test, protected TestServices<tests::ScriptedSession> {
 public:
    static void SetUpTestSuite() { ui::Theme::apply(base::Bundle(KALVO_SOURCE_DIR "/resources")); }

 protected:
    ScreenTest() : TestServices(KALVO_SOURCE_DIR "/resources"), window(application.openWindow()) {
        QApplication::setActiveWindow(window);
        QApplication::processEvents();
    }
    void TearDown() override { delete window; }

    [[nodiscard]] MainScreen& screen() const {
        return *qobject_cast<MainScreen*>(window->centralWidget());
    }
    [[nodiscard]] ContentView& state() const { return screen().state(); }

    /// The widget of a kind that a screen reader finds under this name.
    template <class Widget>
    [[nodiscard]] Widget* named(const QString& name) const {
        for (Widget* widget : window->findChildren<Widget*>()) {
            if (nameOf(widget) == name) return widget;
        }
        throw std::runtime_error("nothing is named " + name.toStdString());
    }

    void choose(const QString& picker, const QString& entry) const {
        auto* box = named<QComboBox>(picker);
        const int row = box->findText(entry);
        ASSERT_GE(row, 0) << entry.toStdString();
        box->setFocus();
        box->showPopup();
        box->view()->setCurrentIndex(box->model()->index(row, 0));
        QTest::keyClick(box->view(), Qt::Key_Return);
    }

    void click(const QString& button) const {
        QTest::mouseClick(named<QAbstractButton>(button), Qt::LeftButton);
    }

    RecordingUrlOpener urlOpener;
    base::NotificationCenter notifications;
    Kalvo_TreskApp application{services, notifications, urlOpener};
    QMainWindow* window;
};

}  // namespace kalvo::app
