#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QSslServer>
#include <QSslSocket>

#include "tests/support/test_authority.h"

namespace kalvo::tests {

/// What a `TlsServer` sends for a request: bytes as they stand, status line and headers included.
struct TlsAnswer {
    enum class Then { keepOpen, close };

    std::string bytes;
    Then then = Then::keepOpen;
    std::chrono::milliseconds perByte{0};  // of the body, pause after each; 0: all at once
    std::string repeated = {};             // sent after the bytes, for as long as anybody listens

    /// A complete answer, such as status "404 Not Found".
    [[nodiscard]] static TlsAnswer withStatus(const std::string& status, const std::string& body);
    [[nodiscard]] static TlsAnswer ok(const std::string& body) {
        return withStatus("200 OK", body);
    }
    [[nodiscard]] static TlsAnswer redirect(const std::string& location);
};

/// An HTTPS server on the loopback address that sends what a test tells it to, also what no server
/// should. It runs on the event loop of its thread.
class TlsServer {
 public:
    static constexpr const char* kAddress = "127.0.0.1";

    /// A server for clients that trust the test authority.
    TlsServer() : TlsServer(authority().issue(kAddress, 1)) {}
    explicit TlsServer(const TlsIdentity& identity);

    /// The authority behind the servers' certificates.
    [[nodiscard]] static const TestAuthority& authority();

    [[nodiscard]] std::string origin() const;  // without a trailing slash

    /// What every request for this path (with its query) gets from now on. Another path gets a
    /// status 500 with an empty body.
    void answer(const std::string& path, TlsAnswer answer) { answers_[path] = std::move(answer); }

    /// The heads of the requests so far, from the request line to the last header.
    [[nodiscard]] const std::vector<std::string>& requests() const { return requests_; }

    [[nodiscard]] int openConnections() const { return openConnections_; }

 private:
    void accept(QSslSocket* connection);
    void read(QSslSocket* connection);
    void send(QSslSocket* connection, const TlsAnswer& answer);

    std::map<std::string, TlsAnswer> answers_;
    std::vector<std::string> requests_;
    int openConnections_ = 0;
    QSslServer server_;  // ends first, with the connections that report to the others
};

}  // namespace kalvo::tests
