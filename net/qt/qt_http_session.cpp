#include "net/qt/qt_http_session.h"

#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include "base/qt/qstring.h"
#include "net/qt/http_transfer.h"

namespace kalvo::net {

namespace {

constexpr int kRedirectLimit = 5;
constexpr int kDeadlineFactor = 3;

QNetworkRequest networkRequest(const QUrl& url, const HttpRequest& request) {
    QNetworkRequest made(url);
    // HTTP/2 of Qt 6.4 has known flaws, and nothing here would gain by it.
    made.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    made.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                      QNetworkRequest::ManualRedirectPolicy);
    for (const auto& [name, value] : request.headers) {
        made.setRawHeader(QByteArray::fromStdString(name), QByteArray::fromStdString(value));
    }
    return made;
}

bool isSafe(const QUrl& url) { return url.isValid() && url.scheme() == "https"; }

base::Failure failure(QNetworkReply::NetworkError code, const std::string& message) {
    return base::Failure(base::Error{"Transport", code, message});
}

}  // namespace

base::Task<base::Result<std::string>> QtHttpSession::get(HttpRequest request) {
    const QDeadlineTimer deadline(kDeadlineFactor * request.timeout);
    QUrl url(base::toQString(request.url), QUrl::StrictMode);
    const std::string host = url.host().toStdString();
    if (!isSafe(url)) {
        co_return failure(QNetworkReply::ProtocolUnknownError,
                          "only https addresses can be downloaded");
    }
    for (int redirects = 0; redirects <= kRedirectLimit; ++redirects) {
        HttpTransfer transfer(network().get(networkRequest(url, request)), request.timeout,
                              deadline);
        base::Result<std::string> body = co_await transfer;
        const std::optional<QUrl> next = transfer.redirection();
        if (!body || !next) co_return body;
        if (!isSafe(*next)) {
            co_return failure(QNetworkReply::InsecureRedirectError,
                              host + " sends its readers on to an unsafe address");
        }
        url = *next;
    }
    co_return failure(QNetworkReply::TooManyRedirectsError,
                      host + " sends its readers on from one address to the next without end");
}

QNetworkAccessManager& QtHttpSession::network() {
    if (!network_) {
        QCoreApplication* const application = QCoreApplication::instance();
        network_ = new QNetworkAccessManager(application);
        QObject::connect(application, &QCoreApplication::aboutToQuit, network_,
                         &QObject::deleteLater);
    }
    return *network_;
}

}  // namespace kalvo::net
