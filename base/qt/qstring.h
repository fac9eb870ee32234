#pragma once

#include <string_view>

#include <QString>

namespace kalvo::base {

/// Returns a UTF-8 text as Qt's; bytes that are no UTF-8 become U+FFFD. The way back is
/// `QString::toStdString`.
[[nodiscard]] inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace kalvo::base
