#pragma once

#include <string>
#include <utility>

#include <QPointer>

#include "net/http_session.h"

namespace kalvo::net {

class HttpConnections;

/// Downloads through libcurl on a thread of its own; see `HttpWorker` for what it promises. Errors
/// have the domain "Transport" and a CURLcode, and name the host that failed, also after redirects.
/// It needs an event loop and outlives its tasks; it may outlive the application object.
class CurlHttpSession : public HttpSession {
 public:
    /// Trusts the certificate authorities of a PEM text, or the system's where it is empty. Costs
    /// nothing: thread and library are brought in by the first request.
    explicit CurlHttpSession(std::string authorities = {}) : authorities_(std::move(authorities)) {}
    CurlHttpSession(const CurlHttpSession&) = delete;
    CurlHttpSession& operator=(const CurlHttpSession&) = delete;
    ~CurlHttpSession() override;

    [[nodiscard]] base::Task<base::Result<std::string>> get(HttpRequest request) override;

 private:
    [[nodiscard]] HttpConnections& connections();

    std::string authorities_;
    /// Ends when the application quits: closing TLS connections needs more than is left when static
    /// objects are destroyed.
    QPointer<HttpConnections> connections_;
};

}  // namespace kalvo::net
