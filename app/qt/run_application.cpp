#include "app/qt/run_application.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "app/branding.h"
#include "app/qt/kalvo_tresk_app.h"
#include "base/qt/qstring.h"
#include "base/qt/qt_clipboard.h"
#include "base/qt/qt_url_opener.h"
#include "ui/fontconfig_preload.h"
#include "ui/theme.h"

namespace kalvo::app {

namespace {

/// The interface is Italian, whatever the desktop speaks: so are the texts that Qt brings along,
/// such as those of a field's context menu.
void installItalianLocale(QTranslator& qtTexts) {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    if (qtTexts.load(QStringLiteral("qtbase_it"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&qtTexts);
    }
}

}  // namespace

int runApplication(int argc, char** argv, const std::function<void(QMainWindow&)>& opened) {
    // While the application connects to the desktop.
    std::future<void> fontConfiguration = ui::preloadFontconfig();
    QApplication::setApplicationName(QStringLiteral("Kalvo_Tresk"));
    QApplication::setApplicationDisplayName(base::toQString(kApplicationName));
    QApplication::setApplicationVersion(QStringLiteral("1.0"));
    QApplication::setDesktopFileName(QStringLiteral("example.kalvo.KalvoTresk"));
    const QApplication application(argc, argv);
    QTranslator qtTexts;
    installItalianLocale(qtTexts);
    // While the window is made.
    engine::LocationParser::shared().prefetchLocations();
    fontConfiguration = {};

    const base::Bundle& bundle = base::Bundle::main();
    ui::Theme::apply(bundle);
    base::QtClipboard clipboard;
    base::QtUrlOpener urlOpener;
    Kalvo_TreskApp kalvo({.parser = engine::LocationParser::shared(),
                          .scraper = online::MeteoblueScraper::shared(),
                          .clipboard = clipboard,
                          .diagnostics = base::Diagnostics::standardOutput(),
                          .bundle = bundle},
                         base::NotificationCenter::defaultCenter(), urlOpener);
    opened(*kalvo.openWindow());
    return QApplication::exec();
}

}  // namespace kalvo::app
