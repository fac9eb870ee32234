#include "net/url.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include "base/qt/qstring.h"
#include "base/text.h"

namespace kalvo::net {

bool isValidUrl(std::string_view text) {
    if (text.size() > kLongestUrl) return false;
    const QUrl url(base::toQString(text), QUrl::StrictMode);
    // "https:https://host/" is an address to QUrl, one with a path and no host.
    return url.isValid() && !url.host().isEmpty();
}

std::optional<std::string> percentEncodedQuery(std::string_view text) {
    if (!base::isValidUtf8(text)) return std::nullopt;
    // The sub-delimiters and the rest of RFC 3986's query production; letters, digits and
    // "-._~" pass by themselves.
    const QByteArray allowed = "!$&'()*+,;=:@/?";
    return QByteArray(text.data(), static_cast<qsizetype>(text.size()))
        .toPercentEncoding(allowed)
        .toStdString();
}

}  // namespace kalvo::net
