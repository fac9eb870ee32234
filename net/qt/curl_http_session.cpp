#include "net/qt/curl_http_session.h"

#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QUrl>

#include "base/qt/qstring.h"
#include "net/qt/http_connections.h"

namespace kalvo::net {

namespace {

constexpr int kRedirectLimit = 5;
constexpr int kDeadlineFactor = 3;

bool isSafe(const QUrl& url) {
    return url.isValid() && url.scheme() == "https" && !url.host().isEmpty();
}

base::Failure failure(CURLcode code, std::string message) {
    return base::Failure(base::Error{"Transport", code, std::move(message)});
}

}  // namespace

CurlHttpSession::~CurlHttpSession() { delete connections_; }

base::Task<base::Result<std::string>> CurlHttpSession::get(HttpRequest request) {
    const auto deadline = std::chrono::steady_clock::now() + kDeadlineFactor * request.timeout;
    QUrl url(base::toQString(request.url), QUrl::StrictMode);
    if (!isSafe(url)) {
        co_return failure(CURLE_UNSUPPORTED_PROTOCOL, "only https addresses can be downloaded");
    }
    request.headers.emplace_back("Accept-Encoding", "gzip");
    // The same for everybody: the languages of a desktop would tell its user apart.
    request.headers.emplace_back("Accept-Language", "it-IT,en,*");
    for (int redirects = 0; redirects <= kRedirectLimit; ++redirects) {
        const std::string host = url.host().toStdString();
        HttpConnections::Download download(
            connections(), {.url = url.toEncoded(QUrl::RemoveFragment).toStdString(),
                            .headers = request.headers,
                            .idle = request.timeout,
                            .deadline = deadline});
        base::Result<HttpAnswer> answer = co_await download;
        if (!answer) {
            co_return failure(static_cast<CURLcode>(answer.error().code),
                              host + " " + answer.error().message);
        }
        if (!answer->location) co_return std::move(answer->body);
        // Strict, so that no address is followed that somebody else may read in another way.
        const QUrl target(base::toQString(*answer->location), QUrl::StrictMode);
        if (!target.isValid() || !isSafe(url.resolved(target))) {
            co_return failure(CURLE_UNSUPPORTED_PROTOCOL,
                              host + " sends its readers on to an unsafe address");
        }
        url = url.resolved(target);
    }
    co_return failure(
        CURLE_TOO_MANY_REDIRECTS,
        url.host().toStdString() + " is the last of too many addresses that send their readers on");
}

HttpConnections& CurlHttpSession::connections() {
    if (!connections_) {
        QCoreApplication* const application = QCoreApplication::instance();
        connections_ = new HttpConnections(application, authorities_);
        QObject::connect(application, &QCoreApplication::aboutToQuit, connections_,
                         &QObject::deleteLater);
    }
    return *connections_;
}

}  // namespace kalvo::net
