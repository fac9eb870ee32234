#include "net/qt/http_transfer.h"

#include <utility>

#include <QCoreApplication>
#include <QNetworkRequest>
#include <QVariant>

namespace kalvo::net {

namespace {

/// Whether the reply's error only says that its status code is 400 or above. An error of the same
/// kind with another status code means that the body could not be unpacked.
bool isHttpStatusError(const QNetworkReply& reply) {
    const QNetworkReply::NetworkError error = reply.error();
    if (reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() < 400) return false;
    return (error >= QNetworkReply::ContentAccessDenied &&
            error <= QNetworkReply::UnknownContentError) ||
           (error >= QNetworkReply::InternalServerError &&
            error <= QNetworkReply::UnknownServerError) ||
           error == QNetworkReply::ProtocolInvalidOperationError;
}

/// What the host did, to stand after its name.
std::string explanation(const QNetworkReply& reply) {
    switch (reply.error()) {
        case QNetworkReply::ConnectionRefusedError:
            return "refused the connection";
        case QNetworkReply::HostNotFoundError:
            return "cannot be found";
        case QNetworkReply::RemoteHostClosedError:
            return "closed the connection before its answer was complete";
        case QNetworkReply::SslHandshakeFailedError:
            return "cannot be reached safely: " + reply.errorString().toStdString();
        case QNetworkReply::UnknownContentError:
            return "sent an answer that cannot be unpacked";
        default:
            return "gave no usable answer: " + reply.errorString().toStdString();
    }
}

}  // namespace

HttpTransfer::HttpTransfer(QNetworkReply* reply,
                           std::chrono::milliseconds idle,
                           QDeadlineTimer deadline)
    : reply_(reply) {
    connect(reply_, &QNetworkReply::readyRead, this, &HttpTransfer::readBody);
    connect(reply_, &QNetworkReply::finished, this, &HttpTransfer::finish);
    // A body that cannot be unpacked is an error long before the reply finishes, if it ever does.
    connect(reply_, &QNetworkReply::errorOccurred, this, &HttpTransfer::failIfBroken);

    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this,
            [this] { fail(QNetworkReply::TimeoutError, "sent nothing for too long"); });
    idle_.start(idle);

    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this,
            [this] { fail(QNetworkReply::TimeoutError, "took too long to answer"); });
    deadline_.start(std::chrono::milliseconds(deadline.remainingTime()));
}

HttpTransfer::~HttpTransfer() {
    if (!reply_) return;
    reply_->disconnect(this);
    // Its deletion closes the connection. To abort it first would be a second error to a reply
    // that has failed but not finished.
    reply_->deleteLater();
}

std::optional<QUrl> HttpTransfer::redirection() const {
    const QUrl target = reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (target.isEmpty()) return std::nullopt;
    return reply_->url().resolved(target);
}

void HttpTransfer::readBody() {
    idle_.start();
    // One byte more than allowed is enough to know.
    const qint64 wanted = static_cast<qint64>(kBodyLimit - body_.size()) + 1;
    body_ += reply_->read(wanted).toStdString();
    if (body_.size() > kBodyLimit) {
        fail(QNetworkReply::UnknownContentError, "sent more than a page or a chart can have");
    }
}

void HttpTransfer::finish() {
    readBody();
    failIfBroken();
    end(std::move(body_));
}

void HttpTransfer::failIfBroken() {
    if (reply_->error() == QNetworkReply::NoError || isHttpStatusError(*reply_)) return;
    fail(reply_->error(), explanation(*reply_));
}

void HttpTransfer::fail(QNetworkReply::NetworkError code, const std::string& reason) {
    end(base::Failure({"Transport", code, reply_->url().host().toStdString() + " " + reason}));
}

void HttpTransfer::end(base::Result<std::string> outcome) {
    if (outcome_) return;
    outcome_ = std::move(outcome);
    idle_.stop();
    deadline_.stop();
    reply_->disconnect(this);
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void HttpTransfer::customEvent(QEvent* /*event*/) { awaiting_.resume(); }

}  // namespace kalvo::net
