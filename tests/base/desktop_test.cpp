#include <gtest/gtest.h>
#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include "base/qt/qt_clipboard.h"
#include "base/qt/qt_url_opener.h"

namespace kalvo::base {
namespace {

/// Stands in for the browser.
class Browser final : public QObject {
    Q_OBJECT

 public:
    Browser() {
        for (const char* scheme : {"https", "http", "file"}) {
            QDesktopServices::setUrlHandler(QString::fromUtf8(scheme), this, "open");
        }
    }
    Q_DISABLE_COPY(Browser)
    ~Browser() override {
        for (const char* scheme : {"https", "http", "file"}) {
            QDesktopServices::unsetUrlHandler(QString::fromUtf8(scheme));
        }
    }

    Q_INVOKABLE void open(const QUrl& url) { opened << url.toString(); }

    QStringList opened;
};

TEST(QtUrlOpenerTest, OpensCompleteHttpsAddressesOnly) {
    Browser browser;
    QtUrlOpener urlOpener;
    EXPECT_TRUE(urlOpener.open("https://www.kalvo.example"));
    EXPECT_EQ(browser.opened, QStringList{QStringLiteral("https://www.kalvo.example")});
    for (const char* refused :
         {"", "www.kalvo.example", "http://www.kalvo.example", "https://", "https:///path",
          "file:///etc/passwd", "https://a b.example", "https://www.kalvo.example/%zz"}) {
        EXPECT_FALSE(urlOpener.open(refused)) << refused;
    }
    EXPECT_EQ(browser.opened.size(), 1);
}

TEST(QtClipboardTest, ReplacesTheClipboardByPlainText) {
    auto* rich = new QMimeData;
    rich->setHtml(QStringLiteral("<b>old</b>"));
    QGuiApplication::clipboard()->setMimeData(rich);
    QtClipboard().setString("Velocità\tGen\n<b>1</b>");
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(held->text(), QString::fromUtf8("Velocità\tGen\n<b>1</b>"));
    EXPECT_FALSE(held->hasHtml());
}

}  // namespace
}  // namespace kalvo::base

#include "desktop_test.moc"
