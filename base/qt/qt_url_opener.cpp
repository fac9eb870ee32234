#include "base/qt/qt_url_opener.h"

#include <QDesktopServices>
#include <QUrl>

namespace kalvo::base {

bool QtUrlOpener::open(std::string_view address) {
    const QUrl url(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())),
                   QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != QStringLiteral("https") || url.host().isEmpty()) {
        return false;
    }
    return QDesktopServices::openUrl(url);
}

}  // namespace kalvo::base
