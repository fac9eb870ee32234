#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "platform/result.h"
#include "platform/task.h"

namespace kalvo::platform {

/// A GET request. The timeout counts idle time: how long the peer may send nothing.
struct HttpRequest {
    std::string url;
    std::vector<std::pair<std::string, std::string>> headers;  // name, value; in sending order
    std::chrono::milliseconds timeout;
};

/// Downloads over HTTP. The answer is the whole body, whatever the status code says; a failure
/// is one of transport (no connection, timeout, a body too large, a redirect refused) with a
/// message a person understands. Giving up the task gives up the download.
class HttpSession {
 public:
    virtual ~HttpSession() = default;
    [[nodiscard]] virtual Task<Result<std::string>> get(HttpRequest request) = 0;
};

}  // namespace kalvo::platform
