#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <curl/curl.h>

#include "base/result.h"

namespace kalvo::net {

struct CurlLibrary;

/// A GET request to one address; a redirect is not followed.
struct HttpDownload {
    std::string url;                                           // percent-encoded
    std::vector<std::pair<std::string, std::string>> headers;  // name, value; in sending order
    std::chrono::milliseconds idle;                            // how long the peer may send nothing
    std::chrono::steady_clock::time_point deadline;            // when all must have arrived
};

/// The final answer to a request.
struct HttpAnswer {
    std::string body;                     // unpacked
    std::optional<std::string> location;  // of a redirect, as the header has it
};

/// Downloads through libcurl on a thread of its own, so that neither a name lookup nor
/// certificates, unpacking or anything a server does holds the thread that asks. HTTP/1.1 over
/// verified TLS only; cookies are kept in memory. A failure has the domain "Transport", a CURLcode
/// and a reason to stand after the host's name. At most 8 MiB are received for a body and unpacked
/// from it, and 256 KiB of headers.
class HttpWorker {
 public:
    using Id = std::uint64_t;
    /// Told about each download that has ended and was not canceled before, on the worker's thread.
    using Finished = std::function<void(Id, base::Result<HttpAnswer>)>;

    /// Trusts the certificate authorities of a PEM text, or the system's where it is empty.
    HttpWorker(Finished finished, std::string authorities);
    HttpWorker(const HttpWorker&) = delete;
    HttpWorker& operator=(const HttpWorker&) = delete;
    /// Gives up what is under way. `finished` is not called any more once this has returned.
    ~HttpWorker();

    [[nodiscard]] Id start(HttpDownload download);
    /// Gives a download up. Its end may be told all the same if it comes at the same moment.
    void cancel(Id id);

 private:
    struct Transfer;
    struct Orders {
        std::vector<std::pair<Id, HttpDownload>> started;
        std::vector<Id> canceled;
        bool isOver = false;
    };

    void give(const std::function<void(Orders&)>& order);
    void run();
    void serve(const CurlLibrary& curl);
    void obey(const CurlLibrary& curl, Orders&& orders);
    void finishTransfers(const CurlLibrary& curl);
    void endOverdue(const CurlLibrary& curl);
    [[nodiscard]] int millisecondsToNextDeadline() const;
    void end(const CurlLibrary& curl, Transfer& transfer, base::Result<HttpAnswer> answer);

    Finished finished_;
    std::string authorities_;
    Id lastId_ = 0;

    std::mutex mutex_;  // guards the next three
    std::condition_variable ordered_;
    Orders orders_;
    CURLM* wakeable_ = nullptr;  // what the thread sleeps in, once there is one

    // Of the worker's thread only.
    CURLM* multi_ = nullptr;
    CURLSH* share_ = nullptr;
    std::vector<std::unique_ptr<Transfer>> transfers_;

    std::thread thread_;  // started last
};

}  // namespace kalvo::net
