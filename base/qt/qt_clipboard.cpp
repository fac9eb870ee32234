#include "base/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "base/qt/qstring.h"

namespace kalvo::base {

void QtClipboard::setString(std::string_view text) {
    QGuiApplication::clipboard()->setText(toQString(text));
}

}  // namespace kalvo::base
