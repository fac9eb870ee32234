#pragma once

#include <memory>
#include <string>

#include "platform/http_session.h"

class QNetworkAccessManager;

namespace kalvo::platform {

/// Downloads through Qt, over HTTP/1.1 and verified TLS only. Cookies live in memory; nothing is
/// kept on disk. Errors have the domain "Transport" and the code of QNetworkReply::NetworkError
/// that comes nearest. It needs an event loop, and outlives its tasks.
class QtHttpSession final : public HttpSession {
 public:
    /// Costs nothing: networking is set up by the first request.
    QtHttpSession();
    ~QtHttpSession() override;

    [[nodiscard]] Task<Result<std::string>> get(HttpRequest request) override;

 private:
    [[nodiscard]] QNetworkAccessManager& network();

    std::unique_ptr<QNetworkAccessManager> network_;
};

}  // namespace kalvo::platform
