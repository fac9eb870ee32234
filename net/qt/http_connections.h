#pragma once

#include <coroutine>
#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include <QObject>
#include <QPointer>

#include "net/http_worker.h"

namespace kalvo::net {

/// Brings the ends of a worker's downloads to the thread on which it was made, whose event loop
/// resumes the coroutines that await them.
class HttpConnections final : public QObject {
 public:
    HttpConnections(QObject* parent, std::string authorities);

    /// A download under way; awaited once, it gives the answer or what went wrong. Its end gives
    /// the download up. It may outlive the connections, and is then never resumed.
    class Download {
     public:
        Download(HttpConnections& connections, HttpDownload asked);
        Download(const Download&) = delete;
        Download& operator=(const Download&) = delete;
        ~Download();

        [[nodiscard]] bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> awaiting) noexcept { awaiting_ = awaiting; }
        [[nodiscard]] base::Result<HttpAnswer> await_resume() { return std::move(*answer_); }

     private:
        friend class HttpConnections;

        QPointer<HttpConnections> connections_;
        HttpWorker::Id id_;
        std::optional<base::Result<HttpAnswer>> answer_;
        std::coroutine_handle<> awaiting_;
    };

 private:
    /// Each event posted to the connections is for one download that has ended.
    void customEvent(QEvent* event) override;

    std::map<HttpWorker::Id, Download*> downloads_;
    std::mutex mutex_;  // guards the next
    std::deque<std::pair<HttpWorker::Id, base::Result<HttpAnswer>>> ended_;
    HttpWorker worker_;  // ends first
};

}  // namespace kalvo::net
