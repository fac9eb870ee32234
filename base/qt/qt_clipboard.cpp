#include "base/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kalvo::base {

void QtClipboard::setString(std::string_view text) {
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

}  // namespace kalvo::base
