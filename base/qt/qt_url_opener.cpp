#include "base/qt/qt_url_opener.h"

#include <QDesktopServices>
#include <QUrl>

#include "base/qt/qstring.h"

namespace kalvo::base {

bool QtUrlOpener::open(std::string_view address) {
    const QUrl url(toQString(address), QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != QStringLiteral("https") || url.host().isEmpty()) {
        return false;
    }
    return QDesktopServices::openUrl(url);
}

}  // namespace kalvo::base
