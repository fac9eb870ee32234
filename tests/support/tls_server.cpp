#include "tests/support/tls_server.h"

#include <cstring>
#include <stdexcept>

#include <QHostAddress>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTimer>

namespace kalvo::tests {

namespace {

constexpr const char* kEndOfHead = "\r\n\r\n";

/// The path in a request line, such as "GET /path HTTP/1.1".
std::string requestedPath(const std::string& head) {
    const std::size_t start = head.find(' ') + 1;
    return head.substr(start, head.find(' ', start) - start);
}

QByteArray bytes(const std::string& text) { return QByteArray::fromStdString(text); }

/// Sends the bytes from `start` on one by one, for as long as the connection lasts.
void drip(QSslSocket* connection, const TlsAnswer& answer, std::size_t start) {
    auto* const timer = new QTimer(connection);
    QObject::connect(timer, &QTimer::timeout, connection, [=, position = start]() mutable {
        if (position < answer.bytes.size()) {
            connection->write(&answer.bytes[position++], 1);
            return;
        }
        timer->stop();
        if (answer.then == TlsAnswer::Then::close) connection->disconnectFromHost();
    });
    timer->start(answer.perByte);
}

}  // namespace

TlsAnswer TlsAnswer::withStatus(const std::string& status, const std::string& body) {
    return {.bytes = "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) +
                     kEndOfHead + body};
}

TlsAnswer TlsAnswer::redirect(const std::string& location) {
    return {.bytes =
                "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + location + kEndOfHead};
}

TlsServer::TlsServer(const TlsIdentity& identity) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(QSslCertificate(bytes(identity.certificate)));
    tls.setPrivateKey(QSslKey(bytes(identity.privateKey), QSsl::Ec));
    server_.setSslConfiguration(tls);
    QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_, [this] {
        while (auto* const connection =
                   qobject_cast<QSslSocket*>(server_.nextPendingConnection())) {
            accept(connection);
        }
    });
    if (!server_.listen(QHostAddress(kAddress))) {
        throw std::runtime_error("no loopback port to listen on");
    }
}

const TestAuthority& TlsServer::authority() {
    static const TestAuthority authority;
    return authority;
}

std::string TlsServer::origin() const {
    return "https://" + std::string(kAddress) + ":" + std::to_string(server_.serverPort());
}

void TlsServer::accept(QSslSocket* connection) {
    ++openConnections_;
    QObject::connect(connection, &QSslSocket::disconnected, &server_, [this, connection] {
        --openConnections_;
        connection->deleteLater();
    });
    QObject::connect(connection, &QSslSocket::readyRead, &server_,
                     [this, connection] { read(connection); });
    read(connection);
}

void TlsServer::read(QSslSocket* connection) {
    // A request without a body ends with its head, and a client sends the next one only after
    // the answer.
    if (!connection->peek(connection->bytesAvailable()).endsWith(kEndOfHead)) return;
    requests_.push_back(connection->readAll().toStdString());
    const auto found = answers_.find(requestedPath(requests_.back()));
    send(connection, found != answers_.end() ? found->second
                                             : TlsAnswer::withStatus("500 Not in the script", ""));
}

void TlsServer::send(QSslSocket* connection, const TlsAnswer& answer) {
    if (answer.perByte.count() > 0) {
        const std::size_t body = answer.bytes.find(kEndOfHead) + std::strlen(kEndOfHead);
        connection->write(answer.bytes.data(), static_cast<qint64>(body));
        return drip(connection, answer, body);
    }
    connection->write(bytes(answer.bytes));
    if (!answer.repeated.empty()) {
        QObject::connect(connection, &QSslSocket::encryptedBytesWritten, connection, [=] {
            if (connection->encryptedBytesToWrite() == 0) connection->write(bytes(answer.repeated));
        });
    }
    if (answer.then == TlsAnswer::Then::close) connection->disconnectFromHost();
}

}  // namespace kalvo::tests
