#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "base/result.h"
#include "base/task.h"

namespace kalvo::net {

/// A GET request. The timeout counts idle time, how long the peer may send nothing; the whole
/// download may take three times as long.
struct HttpRequest {
    std::string url;
    std::vector<std::pair<std::string, std::string>> headers;  // name, value; in sending order
    std::chrono::milliseconds timeout;
};

/// Downloads over HTTP. The answer is the whole body, whatever the status code says. Up to five
/// redirects are followed, and only to "https" addresses. A failure is one of transport (no
/// connection, a timeout, an answer that is incomplete, damaged or beyond 8 MiB, a redirect that is
/// refused) with a message a person understands. Giving up the task gives up the download.
class HttpSession {
 public:
    virtual ~HttpSession() = default;
    [[nodiscard]] virtual base::Task<base::Result<std::string>> get(HttpRequest request) = 0;
};

}  // namespace kalvo::net
