#include "app/run_application.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "app/kalvo_tresk_app.h"
#include "app/makers_texts.h"
#include "platform/qt/font_configuration.h"
#include "platform/qt/qt_pasteboard.h"
#include "platform/qt/qt_workspace.h"
#include "widgets/theme.h"

namespace kalvo::app {

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

int runApplication(int argc, char** argv, const std::function<void(QMainWindow&)>& opened) {
    // While the application connects to the desktop.
    std::future<void> fontConfiguration = platform::readFontConfiguration();
    QApplication::setApplicationName(QStringLiteral("Kalvo_Tresk"));
    QApplication::setApplicationDisplayName(QString::fromUtf8(kApplicationName));
    QApplication::setApplicationVersion(QStringLiteral("1.0"));
    QApplication::setDesktopFileName(QStringLiteral("example.kalvo.KalvoTresk"));
    const QApplication application(argc, argv);
    QTranslator qtTexts;
    speakItalian(qtTexts);
    // While the window is made.
    engine::LocationParser::shared().readLocationsAhead();
    fontConfiguration = {};

    const platform::Bundle& bundle = platform::Bundle::main();
    widgets::Theme::apply(bundle);
    platform::QtPasteboard pasteboard;
    platform::QtWorkspace workspace;
    Kalvo_TreskApp kalvo({.parser = engine::LocationParser::shared(),
                          .scraper = online::MeteoblueScraper::shared(),
                          .pasteboard = pasteboard,
                          .diagnostics = platform::Diagnostics::standardOutput(),
                          .bundle = bundle},
                         platform::NotificationCenter::defaultCenter(), workspace);
    opened(*kalvo.openWindow());
    return QApplication::exec();
}

}  // namespace kalvo::app
