#include "app/qt/main_screen.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <QClipboard>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QScrollBar>

#include "tests/app/screen_fixture.h"
#include "ui/image_view.h"
#include "ui/notice.h"
#include "ui/tinted_label.h"

namespace kalvo::app {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kInvalidPlace = "Seleziona una località valida.";
constexpr const char* kSearchUrl = "https://site.test/en/server/search/query3?query=Roma";

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

/// Whether a label with this text can be seen; its lines do not end within a figure.
bool shows(const QWidget& window, QString wanted) {
    wanted.replace(text(" kWh/anno"), text("\u00a0kWh/\u2060anno"));
    return std::ranges::any_of(window.findChildren<QLabel*>(), [&](const QLabel* label) {
        return label->isVisible() && label->text() == wanted;
    });
}

/// How many flags can be seen.
int flagsIn(const QWidget& window) {
    return static_cast<int>(std::ranges::count_if(
        window.findChildren<ui::ImageView*>(),
        [](const auto* image) { return image->isVisible() && image->size() == QSize(24, 16); }));
}

TEST_F(ScreenTest, AnOfflineCountryBringsItsPlacesItsFlagAndItsResult) {
    auto* places = named<QComboBox>(text("Località Selezionata"));
    EXPECT_TRUE(named<QPushButton>("Offline (Stime)")->isChecked());
    EXPECT_TRUE(named<QRadioButton>("2 kW")->isChecked());
    EXPECT_EQ(named<QLineEdit>(text("Quantità Turbine"))->text(), "1");
    EXPECT_TRUE(shows(*window, "Stima Solare FTV"));

    choose("Nazione", "Italia");
    EXPECT_EQ(state().selectedCountry, "Italia");
    EXPECT_EQ(places->count(), 7896);
    EXPECT_THAT(places->currentText().toStdString(), StartsWith("Abano Terme (PD)"));
    EXPECT_FALSE(named<QPushButton>("Cerca Online su Meteoblue")->isVisible());
    EXPECT_FALSE(named<QWidget>("Globo terrestre")->isVisible());
    for (const std::string& result :
         {state().resultText, state().detailsText, state().pvResultText}) {
        EXPECT_TRUE(shows(*window, QString::fromStdString(result))) << result;
    }
    EXPECT_EQ(flagsIn(*window), 1);
    // Return searches online for the online entry only.
    QTest::keyClicks(named<QLineEdit>(text("Cerca Località")), "Ab");
    QTest::keyClick(named<QLineEdit>(text("Cerca Località")), Qt::Key_Return);
    EXPECT_TRUE(session.requests().empty());

    choose("Nazione", text("Altre località online"));
    EXPECT_TRUE(named<QPushButton>("Cerca Online su Meteoblue")->isVisible());
    EXPECT_TRUE(named<QWidget>("Globo terrestre")->isVisible());
    EXPECT_TRUE(shows(*window, text(kInvalidPlace)));
    EXPECT_TRUE(places->currentText().startsWith("Utilizza la barra di ricerca"));
    EXPECT_EQ(flagsIn(*window), 0);
}

TEST_F(ScreenTest, TypingNarrowsThePlacesAndThePickerFollowsTheKeyboard) {
    choose("Nazione", "Italia");
    auto* places = named<QComboBox>(text("Località Selezionata"));
    const auto chosen = [&] {
        EXPECT_EQ(places->currentText().toStdString(), state().selectedLocationLabel);
        return state().selectedLocationLabel;
    };
    QTest::keyClicks(places, "tori");
    const std::string before = chosen();
    EXPECT_THAT(before, StartsWith("Tori"));
    QTest::keyClick(places, Qt::Key_Down);
    EXPECT_NE(chosen(), before);
    QTest::keyClicks(named<QLineEdit>(text("Cerca Località")), " aosta");
    EXPECT_LT(places->count(), 20);
    EXPECT_THAT(chosen(), StartsWith("Aosta"));
}

TEST_F(ScreenTest, TheSearchFieldOpensTheListOnTheBestMatchAndClears) {
    choose("Nazione", "Italia");
    auto* search = named<QLineEdit>(text("Cerca Località"));
    auto* places = named<QComboBox>(text("Località Selezionata"));
    search->setFocus();
    QTest::keyClicks(search, "roma");
    EXPECT_THAT(places->currentText().toStdString(), StartsWith("Arcinazzo Romano"));
    QTest::keyClick(search, Qt::Key_Down);
    ASSERT_TRUE(places->view()->isVisible());
    QTest::keyClick(places->view(), Qt::Key_Escape);
    EXPECT_THAT(state().selectedLocationLabel, StartsWith("Arcinazzo Romano"));
    QTest::keyClick(search, Qt::Key_Down);
    QTest::keyClick(places->view(), Qt::Key_Return);
    EXPECT_THAT(state().selectedLocationLabel, StartsWith("Roma (RM)"));
    EXPECT_TRUE(search->hasFocus());

    QTest::keyClicks(search, "?");
    EXPECT_EQ(places->placeholderText(), text("Nessuna località trovata"));
    EXPECT_EQ(places->accessibleDescription(), places->placeholderText());
    EXPECT_EQ(places->count(), 0) << "it is no entry";
    QTest::keyClick(search, Qt::Key_Down);
    EXPECT_FALSE(places->view()->isVisible());
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_EQ(state().searchText, "");
    EXPECT_EQ(places->count(), 7896);
    EXPECT_TRUE(places->placeholderText().isEmpty());
    QTest::keyClicks(search, "x");
    click("Cancella");
    EXPECT_EQ(state().searchText, "");
    EXPECT_FALSE(named<QAbstractButton>("Cancella")->isVisible());
}

TEST_F(ScreenTest, ResultsAreCopiedAsTheyAreRead) {
    choose("Nazione", "Italia");
    click("Copia Risultato");
    auto* copied = named<ui::Notice>("Risultato copiato");
    EXPECT_TRUE(copied->isVisible());
    EXPECT_EQ(clipboard.contents, state().detailsText + "\n\n" + state().resultText);
    std::vector<std::string> read;
    for (auto* result : window->findChildren<ui::TintedLabel*>()) {
        read.push_back(result->accessibleName().toStdString());
        QTest::keyClick(result, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text(), result->accessibleName());
    }
    EXPECT_THAT(read, ElementsAre(state().resultText, state().pvResultText));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !copied->isVisible(); }, 4000));
}

TEST_F(ScreenTest, TheTurbineSizeAndEveryKeystrokeOfTheQuantityCalculate) {
    choose("Nazione", "Italia");
    click("3 kW");
    EXPECT_THAT(state().detailsText, HasSubstr("singola turbina 3 kW"));
    auto* field = named<QLineEdit>(text("Quantità Turbine"));
    const std::string one = state().resultText;
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_0);
    EXPECT_TRUE(shows(*window, text("Inserisci una quantità valida.")));
    QTest::keyClick(field, Qt::Key_Backspace);
    EXPECT_EQ(state().resultText, one) << "an empty field counts as one turbine";
    EXPECT_EQ(field->accessibleDescription(), "Conta come 1");
    QTest::keyClicks(field, "12");
    EXPECT_NE(state().resultText, one);
    EXPECT_TRUE(shows(*window, QString::fromStdString(state().resultText)));
}

TEST_F(ScreenTest, AToggleThatIsOnStaysOnAndCalculatesNothing) {
    choose("Nazione", "Italia");
    state().resultText = "untouched";
    click("Offline (Stime)");
    EXPECT_TRUE(named<QPushButton>("Offline (Stime)")->isChecked());
    EXPECT_EQ(state().resultText, "untouched");

    click("Online (Meteoblue)");
    EXPECT_TRUE(state().isOnlineMode);
    EXPECT_FALSE(named<QPushButton>("Offline (Stime)")->isChecked());
    EXPECT_NE(state().resultText, "untouched");
}

TEST_F(ScreenTest, AnOnlineSearchShowsItsProgressAndThenTheFirstPlace) {
    session.hold(kSearchUrl);
    const auto place = [this] {
        const auto* button = named<QPushButton>("Calcola");
        return button->mapTo(window, QPoint());
    };
    const QPoint before = place();
    auto* search = named<QLineEdit>(text("Cerca Località"));
    QTest::keyClicks(search, "Roma");
    EXPECT_TRUE(session.requests().empty()) << "typing must not search online";
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_TRUE(named<QProgressBar>("Scaricamento dati Meteoblue...")->isVisible());
    EXPECT_FALSE(shows(*window, "Stima Solare FTV"));
    EXPECT_EQ(place(), before) << "nothing below the results jumps";

    const std::string page = "https://site.test/en/weather/forecast/modelclimate/roma_italia";
    // The label of the new place is a change that calculates once more.
    session.hold(page);
    session.hold(page);
    session.release(kSearchUrl,
                    R"({"results":[{"name":"Roma","country":"Italy","lat":41.9,"lon":12.5,)"
                    R"("url":"roma_italia","iso2":"IT"}]})");
    EXPECT_EQ(named<QComboBox>(text("Località Selezionata"))->currentText(),
              "Roma (Italy) [lat: 41.9, lon: 12.5]");
    EXPECT_TRUE(named<QPushButton>("Online (Meteoblue)")->isChecked());
    EXPECT_TRUE(named<QProgressBar>("Scaricamento dati Meteoblue...")->isVisible());

    session.release(page, tests::ScriptedSession::failure("no network"));
    session.release(page, tests::ScriptedSession::failure("no network"));
    EXPECT_FALSE(named<QProgressBar>("Scaricamento dati Meteoblue...")->isVisible());
    EXPECT_TRUE(shows(*window, QString::fromStdString(state().detailsText)));
    EXPECT_EQ(place(), before);
}

TEST_F(ScreenTest, NoFrameShowsNewTextsInTheRoomOfTheOldOnes) {
    state().selectedCountry = "Italia";
    screen().redraw();
    int texts = 0;
    for (const QLabel* label : window->findChild<ResultWidget*>()->findChildren<QLabel*>()) {
        if (!label->isVisible() || !label->wordWrap()) continue;
        ++texts;
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    }
    EXPECT_EQ(texts, 3);
}

TEST_F(ScreenTest, ATextFromTheWebIsNeverMarkup) {
    state().resultText = "<b>bold</b><img src='/etc/passwd'>";
    state().detailsText = "<i>";
    screen().redraw();
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    }
    EXPECT_TRUE(shows(*window, QString::fromStdString(state().resultText)));
}

TEST_F(ScreenTest, NoTextWidensTheSidebar) {
    const QWidget& page = *window->findChild<SidebarWidget*>()->widget();
    const int before = page.minimumSizeHint().width();
    for (const char letter : {'W', '9'}) {
        state().detailsText.assign(1'000'000, letter);
        state().resultText.assign(400, letter);
        state().searchText = state().detailsText;
        state().filteredLocationNames.assign(1, state().detailsText);
        state().selectedLocationLabel = state().detailsText;
        screen().redraw();
        EXPECT_EQ(page.minimumSizeHint().width(), before);
        EXPECT_LT(named<QComboBox>(text("Località Selezionata"))->currentText().size(), 300);
    }
}

TEST_F(ScreenTest, APickerThatIsOpenClosesWhenItsPlacesChange) {
    choose("Nazione", "Italia");
    auto* places = named<QComboBox>(text("Località Selezionata"));
    places->showPopup();
    screen().redraw();
    EXPECT_TRUE(places->view()->isVisible());
    state().filteredLocationNames.resize(2);
    screen().redraw();
    EXPECT_FALSE(places->view()->isVisible());
}

TEST_F(ScreenTest, ShowingTheStateEditsNothing) {
    choose("Nazione", "Italia");
    state().selectedCountry = "San Marino";
    state().quantityString = "4";
    state().activeTab = 2;
    screen().redraw();
    EXPECT_EQ(state().selectedCountry, "San Marino");
    EXPECT_EQ(named<QComboBox>(text("Località Selezionata"))->count(), 9);
    EXPECT_EQ(named<QLineEdit>(text("Quantità Turbine"))->text(), "4");
    EXPECT_TRUE(named<QRadioButton>("Mappa Vento")->isChecked());

    // What the state does not hold, a control does not invent.
    state().selectedLocationLabel = "no such place";
    screen().redraw();
    EXPECT_EQ(named<QComboBox>(text("Località Selezionata"))->currentIndex(), -1);
    EXPECT_EQ(state().selectedLocationLabel, "no such place");
}

TEST_F(ScreenTest, TheAnalysisPickerChangesWhatTheDetailsShow) {
    EXPECT_FALSE(shows(*window, "Stima Fotovoltaica (FTV)"));
    click("Analisi Impianto Solare FV");
    EXPECT_EQ(state().activeDetailsTab, 1);
    EXPECT_TRUE(shows(*window, "Stima Fotovoltaica (FTV)"));
}

TEST_F(ScreenTest, TheWheelDoesNotChangeAChoice) {
    auto* country = named<QComboBox>("Nazione");
    QWheelEvent wheel(QPointF(5, 5), country->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(country, &wheel);
    EXPECT_EQ(state().selectedCountry, "Altre località online");
}

TEST_F(ScreenTest, TheInformationSheetIsModalAndClosesWithEscape) {
    click("Informazioni");
    EXPECT_TRUE(state().showInfoSheet);
    auto* sheet = qobject_cast<InfoSheetView*>(QApplication::activeModalWidget());
    ASSERT_NE(sheet, nullptr);
    const QScrollBar* bar = sheet->findChild<ui::ScrollPage*>()->verticalScrollBar();
    QTest::keyClick(sheet, Qt::Key_End);
    EXPECT_EQ(bar->value(), bar->maximum());
    QTest::keyClick(sheet, Qt::Key_Home);
    EXPECT_EQ(bar->value(), 0);
    screen().redraw();
    EXPECT_EQ(window->findChildren<InfoSheetView*>().size(), 1) << "one sheet, however often drawn";
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_FALSE(state().showInfoSheet);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    QTest::keyClick(window, Qt::Key_F1);
    EXPECT_TRUE(state().showInfoSheet);
    QTest::mouseClick(QApplication::activeModalWidget()->findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_FALSE(state().showInfoSheet);
}

TEST_F(ScreenTest, EverythingHasItsPlaceFromTheSmallestWindowUp) {
    window->setMinimumSize(0, 0);
    for (const QSize size : {QSize(640, 480), QSize(1000, 700), QSize(2000, 1200)}) {
        window->resize(size);
        QApplication::processEvents();
        const int width = std::min(348, size.width() - 310);  // 309 and the line between
        EXPECT_EQ(window->size(), size);
        auto* sidebar = window->findChild<SidebarWidget*>();
        EXPECT_EQ(sidebar->width(), width);
        for (const QPushButton* button : sidebar->findChildren<QPushButton*>()) {
            EXPECT_LE(button->mapTo(sidebar, button->rect().topRight()).x(), width - 16);
            EXPECT_GE(button->width(), button->sizeHint().width());
        }
    }
}

}  // namespace
}  // namespace kalvo::app
