#include "platform/qt/qt_workspace.h"

#include <QDesktopServices>
#include <QUrl>

namespace kalvo::platform {

bool QtWorkspace::open(std::string_view address) {
    const QUrl url(QString::fromUtf8(address.data(), static_cast<qsizetype>(address.size())),
                   QUrl::StrictMode);
    if (!url.isValid() || url.scheme() != QStringLiteral("https") || url.host().isEmpty()) {
        return false;
    }
    return QDesktopServices::openUrl(url);
}

}  // namespace kalvo::platform
