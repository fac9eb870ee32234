#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include <QSslServer>
#include <QSslSocket>

namespace kalvo::tests {

/// Returns a certificate for an IP address that signs itself, and its private key, both as PEM. It
/// is valid from two days ago until the given number of days from now (negative: it has expired).
/// Made when a test runs, it leaves nothing secret in the repository.
[[nodiscard]] std::string makeTlsIdentity(const std::string& ipAddress, int days);

/// What a `TlsServer` sends for a request: bytes as they stand, status line and headers included.
struct TlsAnswer {
    std::string bytes;
    bool closes = false;                   // the connection, once all is sent
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

    explicit TlsServer(const std::string& identity = defaultIdentity());

    /// The identity of servers that are given none: what their clients must trust.
    [[nodiscard]] static const std::string& defaultIdentity();

    [[nodiscard]] std::string origin() const;  // without a trailing slash

    /// What every request for this path (with its query) gets from now on. Another path gets a
    /// status 500 with an empty body.
    void answer(const std::string& path, TlsAnswer answer) { answers_[path] = std::move(answer); }

    /// The heads of the requests so far, from the request line to the last header.
    [[nodiscard]] const std::vector<std::string>& requests() const { return requests_; }

    [[nodiscard]] int openConnections() const { return openConnections_; }

 private:
    void read(QSslSocket* connection);
    void send(QSslSocket* connection, const TlsAnswer& answer);

    std::map<std::string, TlsAnswer> answers_;
    std::vector<std::string> requests_;
    int openConnections_ = 0;
    QSslServer server_;  // ends first, with the connections that report to the others
};

}  // namespace kalvo::tests
