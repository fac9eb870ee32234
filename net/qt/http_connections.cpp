#include "net/qt/http_connections.h"

#include <memory>
#include <utility>

namespace kalvo::net {

HttpConnections::HttpConnections(QObject* parent, std::string authorities)
    : QObject(parent),
      worker_(
          [this](HttpWorker::Id id, base::Result<HttpAnswer> answer) {
              QMetaObject::invokeMethod(
                  this,
                  [this, id, answer = std::move(answer)]() mutable {
                      resume(id, std::move(answer));
                  },
                  Qt::QueuedConnection);
          },
          std::move(authorities)) {}

void HttpConnections::resume(HttpWorker::Id id, base::Result<HttpAnswer> answer) {
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
