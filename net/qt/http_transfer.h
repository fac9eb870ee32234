#pragma once

#include <chrono>
#include <coroutine>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include <QDeadlineTimer>
#include <QEvent>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include "base/result.h"

namespace kalvo::net {

/// One request under way and its answer; awaited once, it gives the body or what went wrong. The
/// transfer's end gives the request up. The awaiting coroutine resumes from the event loop, never
/// inside a signal of the reply, so that it may end the transfer and anything else.
class HttpTransfer final : public QObject {
 public:
    /// The most bytes a body may have, unpacked.
    static constexpr std::size_t kBodyLimit = std::size_t{8} << 20;

    /// `idle` is how long nothing may arrive, `deadline` when all must have.
    HttpTransfer(QNetworkReply* reply, std::chrono::milliseconds idle, QDeadlineTimer deadline);
    HttpTransfer(const HttpTransfer&) = delete;
    HttpTransfer& operator=(const HttpTransfer&) = delete;
    ~HttpTransfer() override;

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> awaiting) noexcept { awaiting_ = awaiting; }
    [[nodiscard]] base::Result<std::string> await_resume() { return std::move(*outcome_); }

    /// Once the transfer has been awaited: where the answer sends its reader on to, if it does.
    [[nodiscard]] std::optional<QUrl> redirection() const;

 private:
    void readBody();
    void finish();
    void failIfBroken();
    void fail(QNetworkReply::NetworkError code, const std::string& reason);
    void end(base::Result<std::string> outcome);
    /// The only event posted to the transfer says that it has ended.
    void customEvent(QEvent* event) override;

    QPointer<QNetworkReply> reply_;  // null once the application has quit
    std::string body_;
    QTimer idle_;
    QTimer deadline_;
    std::optional<base::Result<std::string>> outcome_;
    std::coroutine_handle<> awaiting_;
};

}  // namespace kalvo::net
