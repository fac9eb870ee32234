#include "net/qt/http_connections.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>

namespace kalvo::net {

HttpConnections::HttpConnections(QObject* parent, std::string authorities)
    : QObject(parent),
      worker_(
          [this](HttpWorker::Id id, base::Result<HttpAnswer> answer) {
              {
                  const std::lock_guard lock(mutex_);
                  ended_.emplace_back(id, std::move(answer));
              }
              QCoreApplication::postEvent(this, new QEvent(QEvent::User));
          },
          std::move(authorities)) {}

void HttpConnections::customEvent(QEvent* /*event*/) {
    std::unique_lock lock(mutex_);
    auto [id, answer] = std::move(ended_.front());
    ended_.pop_front();
    lock.unlock();
    // Who gave the download up meanwhile is not told.
    const auto found = downloads_.find(id);
    if (found == downloads_.end()) return;
    found->second->answer_ = std::move(answer);
    found->second->awaiting_.resume();
}

HttpConnections::Download::Download(HttpConnections& connections, HttpDownload asked)
    : connections_(&connections), id_(connections.worker_.start(std::move(asked))) {
    connections.downloads_.emplace(id_, this);
}

HttpConnections::Download::~Download() {
    if (!connections_) return;
    connections_->downloads_.erase(id_);
    if (!answer_) connections_->worker_.cancel(id_);
}

}  // namespace kalvo::net
