#include "app/qt/info_sheet_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/branding.h"
#include "base/qt/qstring.h"
#include "ui/scroll_page.h"
#include "ui/theme.h"

namespace kalvo::app {

namespace {

using ui::FontStyle;
using ui::FontWeight;
using ui::TextRole;

constexpr int kPadding = 16;  // points

constexpr const char* kPurpose =
    "Questo programma analizza e stima il potenziale di produzione eolica e solare annuo per i "
    "comuni italiani e per tutto il mondo, utilizzando sia dati geografici e statistiche "
    "provinciali offline, sia i dati climatici in tempo reale forniti da Meteoblue.";

constexpr const char* kPrivacy =
    "Kalvo dichiara che nessun dato inserito nell'applicazione viene raccolto, conservato o "
    "trasmesso a server esterni di profilazione. Le stime offline non usano la rete. Solo quando "
    "si cerca una località online o si tocca il globo, il testo cercato e le coordinate del punto "
    "vengono inviati ai servizi che rispondono alla ricerca: Meteoblue (www.meteoblue.com) e "
    "Nominatim di OpenStreetMap (nominatim.openstreetmap.org). Per ulteriori informazioni: ";

constexpr const char* kSources =
    " Dati: ISTAT (CC BY 3.0 IT), © GeoNames (CC BY 4.0), Natural Earth, TMYx di "
    "Climate.OneBuilding.Org da NOAA NCEI ISD, meteoblue, © i contributori di OpenStreetMap "
    "(ODbL). Le stime sono indicative e non vincolanti.";

QLabel* makeHeading(const char* text) {
    return ui::makeLabel(base::toQString(text), FontStyle::kHeadline);
}

QLabel* makeParagraph(const QString& text) {
    QLabel* paragraph = ui::makeLabel(text, FontStyle::kSubheadline);
    paragraph->setWordWrap(true);
    return paragraph;
}

QWidget* makeTexts() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    column->setSpacing(12);
    column->addWidget(makeHeading("Informazioni sull'Applicazione"));
    column->addWidget(makeParagraph(base::toQString(kPurpose)));
    column->addWidget(makeHeading("Informativa sulla Privacy"));
    column->addWidget(
        makeParagraph(base::toQString(kPrivacy) + base::toQString(kWebAddress) + u'.'));
    column->addWidget(makeHeading("Sviluppatore & Copyright"));
    column->addWidget(makeParagraph(base::toQString(kDeveloperCredit)));
    column->addWidget(makeParagraph(base::toQString(kCopyright) + base::toQString(kSources)));
    column->addStretch();

    auto* area = new ui::ScrollPage;
    area->setFrameShape(QFrame::StyledPanel);
    area->setFocusPolicy(Qt::StrongFocus);
    area->setAccessibleName(QStringLiteral("Testo informativo"));
    area->setWidget(page);
    return area;
}

}  // namespace

InfoSheetView::InfoSheetView(QWidget* parent) : QDialog(parent, Qt::Sheet), texts_(makeTexts()) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Informazioni"));
    setFixedSize(450, 350);

    QLabel* title = ui::makeLabel(QStringLiteral("Kalvo Ventosità & Solare"), FontStyle::kTitle2,
                                  FontWeight::kBold);
    QLabel* version =
        ui::makeLabel(QStringLiteral("Versione 1.0 (iOS 17 & macOS Sonoma)"), FontStyle::kCaption,
                      FontWeight::kRegular, TextRole::kSecondary);
    QFont italic = version->font();
    italic.setItalic(true);
    version->setFont(italic);

    auto* close = new QPushButton(QStringLiteral("&Chiudi"));
    close->setProperty("prominent", true);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    column->setSpacing(16);
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addWidget(version, 0, Qt::AlignHCenter);
    column->addWidget(texts_, 1);
    column->addWidget(close, 0, Qt::AlignHCenter);
    close->setFocus();
}

void InfoSheetView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            // It comes back from texts that do not scroll.
            if (!texts_->hasFocus()) QCoreApplication::sendEvent(texts_, event);
            return;
        default:
            QDialog::keyPressEvent(event);
    }
}

}  // namespace kalvo::app
