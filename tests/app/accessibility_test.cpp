#include <algorithm>

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QMap>
#include <QMenuBar>

#include "tests/app/screen_fixture.h"

namespace kalvo::app {
namespace {

bool isInteractive(const QAccessibleInterface& face) {
    const QList<QAccessible::Role> interactive{QAccessible::Button,       QAccessible::ButtonMenu,
                                               QAccessible::CheckBox,     QAccessible::ComboBox,
                                               QAccessible::EditableText, QAccessible::MenuItem,
                                               QAccessible::RadioButton,  QAccessible::SpinBox};
    return interactive.contains(face.role()) || face.state().focusable;
}

/// Calls `visit` for an element and all below it that can be seen.
template <class Visit>
void traverse(QAccessibleInterface* face, Visit visit) {
    if (face == nullptr || face->state().invisible) return;
    visit(*face);
    for (int child = 0; child < face->childCount(); ++child) traverse(face->child(child), visit);
}

TEST_F(ScreenTest, EveryInteractiveElementHasAName) {
    for (const char* country : {"Altre località online", "Italia"}) {
        state().selectedCountry = country;
        screen().redraw();
        int interactive = 0;
        traverse(QAccessible::queryAccessibleInterface(window), [&](QAccessibleInterface& face) {
            if (!isInteractive(face)) return;
            ++interactive;
            EXPECT_FALSE(nameOf(face).trimmed().isEmpty())
                << "a " << qUtf8Printable(qAccessibleRoleString(face.role())) << " in "
                << (face.object() ? face.object()->metaObject()->className() : "nothing");
        });
        EXPECT_GT(interactive, 15);
    }
}

TEST_F(ScreenTest, MnemonicsAreDifferent) {
    QMap<QString, QString> owners;
    const auto claim = [&](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (key.isEmpty()) return;
        EXPECT_FALSE(owners.contains(key.toString()))
            << text.toStdString() << " and " << owners[key.toString()].toStdString();
        owners[key.toString()] = text;
    };
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        claim(button->text());
    }
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) claim(label->text());
    }
    for (const QAction* menu : window->menuBar()->actions()) claim(menu->text());
    EXPECT_GE(owners.size(), 12);
}

TEST_F(ScreenTest, TheTabulatorReachesEveryControlFromTopToBottomAndShowsIt) {
    state().selectedCountry = "Italia";
    screen().redraw();
    window->setMinimumSize(0, 0);
    window->resize(640, 480);
    QApplication::processEvents();
    QStringList visited;
    named<QComboBox>("Nazione")->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 40; ++i) {
        const QString name = nameOf(QApplication::focusWidget());
        if (visited.contains(name)) break;
        visited << name;
        const QWidget* focused = QApplication::focusWidget();
        const QRect visible = focused->visibleRegion().boundingRect();
        EXPECT_GE(visible.height(), std::min(focused->height(), 160)) << name.toStdString();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QStringList expected =
        QString::fromUtf8(
            "Nazione|Offline (Stime)|Online (Meteoblue)|2 kW|Quantità Turbine|"
            "Cerca Località|Località Selezionata|Copia Risultato|Calcola|"
            "Informazioni|Mappa Regioni")
            .split(u'|');
    EXPECT_EQ(visited.mid(0, expected.size()).join(u'\n').toStdString(),
              expected.join(u'\n').toStdString());
    EXPECT_TRUE(visited.contains("Analisi Impianto Eolico"));
}

}  // namespace
}  // namespace kalvo::app
