#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "app/kalvo_tresk_app.h"
#include "app/makers_texts.h"
#include "platform/qt/qt_pasteboard.h"
#include "platform/qt/qt_workspace.h"
#include "widgets/theme.h"

namespace {

/// The interface is Italian, whatever the desktop speaks: so are the texts that Qt brings along,
/// such as those of a field's context menu.
void speakItalian(QTranslator& qtTexts) {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    if (qtTexts.load(QStringLiteral("qtbase_it"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&qtTexts);
    }
}

}  // namespace

int main(int argc, char** argv) {
    using namespace kalvo;

    QApplication::setApplicationName(QStringLiteral("Kalvo_Tresk"));
    QApplication::setApplicationDisplayName(QString::fromUtf8(app::kApplicationName));
    QApplication::setApplicationVersion(QStringLiteral("1.0"));
    QApplication::setDesktopFileName(QStringLiteral("example.kalvo.KalvoTresk"));
    QApplication application(argc, argv);
    QTranslator qtTexts;
    speakItalian(qtTexts);

    const platform::Bundle& bundle = platform::Bundle::main();
    widgets::Theme::apply(bundle);
    platform::Diagnostics& diagnostics = platform::Diagnostics::standardOutput();
    platform::QtPasteboard pasteboard;
    platform::QtWorkspace workspace;
    app::Kalvo_TreskApp kalvo({.parser = engine::LocationParser::shared(),
                               .scraper = online::MeteoblueScraper::shared(),
                               .pasteboard = pasteboard,
                               .diagnostics = diagnostics,
                               .bundle = bundle},
                              platform::NotificationCenter::defaultCenter(), workspace);
    kalvo.openWindow();
    return QApplication::exec();
}
