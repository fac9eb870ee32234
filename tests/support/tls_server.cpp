#include "tests/support/tls_server.h"

#include <cstring>
#include <memory>
#include <stdexcept>

#include <openssl/pem.h>
#include <openssl/x509v3.h>
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
        if (answer.closes) connection->disconnectFromHost();
    });
    timer->start(answer.perByte);
}

}  // namespace

std::string makeTlsIdentity(const std::string& ipAddress, int days) {
    constexpr long kSecondsOfDay = 24L * 60 * 60;
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_EC_gen("P-256"),
                                                                  &EVP_PKEY_free);
    const std::unique_ptr<X509, decltype(&X509_free)> made(X509_new(), &X509_free);
    X509_set_version(made.get(), X509_VERSION_3);
    X509_gmtime_adj(X509_getm_notBefore(made.get()), -2 * kSecondsOfDay);
    X509_gmtime_adj(X509_getm_notAfter(made.get()), days * kSecondsOfDay);
    X509_NAME* const subject = X509_get_subject_name(made.get());
    const std::string name = ipAddress + " " + std::to_string(days);
    X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char*>(name.c_str()), -1, -1, 0);
    X509_set_issuer_name(made.get(), subject);
    X509_set_pubkey(made.get(), key.get());
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> address(
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, ("IP:" + ipAddress).c_str()),
        &X509_EXTENSION_free);
    X509_add_ext(made.get(), address.get(), -1);
    const std::unique_ptr<BIO, decltype(&BIO_free)> text(BIO_new(BIO_s_mem()), &BIO_free);
    if (X509_sign(made.get(), key.get(), EVP_sha256()) == 0 ||
        PEM_write_bio_X509(text.get(), made.get()) != 1 ||
        PEM_write_bio_PrivateKey(text.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) !=
            1) {
        throw std::runtime_error("OpenSSL refused to make a test certificate");
    }
    char* pem = nullptr;
    const long length = BIO_get_mem_data(text.get(), &pem);
    return {pem, static_cast<std::size_t>(length)};
}

TlsAnswer TlsAnswer::withStatus(const std::string& status, const std::string& body) {
    return {.bytes = "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) +
                     kEndOfHead + body};
}

TlsAnswer TlsAnswer::redirect(const std::string& location) {
    return {.bytes =
                "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + location + kEndOfHead};
}

TlsServer::TlsServer(const std::string& identity) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(QSslCertificate(bytes(identity)));
    tls.setPrivateKey(QSslKey(bytes(identity), QSsl::Ec));
    server_.setSslConfiguration(tls);
    QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_, [this] {
        while (auto* const connection =
                   qobject_cast<QSslSocket*>(server_.nextPendingConnection())) {
            ++openConnections_;
            QObject::connect(connection, &QSslSocket::disconnected, &server_, [this, connection] {
                --openConnections_;
                connection->deleteLater();
            });
            QObject::connect(connection, &QSslSocket::readyRead, &server_,
                             [this, connection] { read(connection); });
            read(connection);
        }
    });
    if (!server_.listen(QHostAddress(kAddress))) {
        throw std::runtime_error("no loopback port to listen on");
    }
}

const std::string& TlsServer::defaultIdentity() {
    static const std::string identity = makeTlsIdentity(kAddress, 1);
    return identity;
}

std::string TlsServer::origin() const {
    return "https://" + std::string(kAddress) + ":" + std::to_string(server_.serverPort());
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
    if (answer.closes) connection->disconnectFromHost();
}

}  // namespace kalvo::tests
