#pragma once

#include <string>

#include <QNetworkAccessManager>
#include <QPointer>

#include "net/http_session.h"

namespace kalvo::net {

/// Downloads through Qt, over HTTP/1.1 and verified TLS only. Cookies live in memory; nothing is
/// kept on disk. Errors have the domain "Transport" and the code of QNetworkReply::NetworkError
/// that comes nearest. It needs an event loop and outlives its tasks; it may outlive the
/// application object.
class QtHttpSession final : public HttpSession {
 public:
    /// Costs nothing: networking is set up by the first request.
    QtHttpSession() = default;
    QtHttpSession(const QtHttpSession&) = delete;
    QtHttpSession& operator=(const QtHttpSession&) = delete;
    ~QtHttpSession() override { delete network_; }

    [[nodiscard]] base::Task<base::Result<std::string>> get(HttpRequest request) override;

 private:
    [[nodiscard]] QNetworkAccessManager& network();

    /// Ends when the application quits: closing connections needs more of Qt than is left when
    /// static objects are destroyed.
    QPointer<QNetworkAccessManager> network_;
};

}  // namespace kalvo::net
