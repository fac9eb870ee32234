#include "platform/qt/qt_pasteboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kalvo::platform {

void QtPasteboard::setString(std::string_view text) {
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

}  // namespace kalvo::platform
