#include "net/http_worker.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <tuple>

#include "net/curl_library.h"
#include "net/gzip_reader.h"

namespace kalvo::net {

using base::Error;
using base::Failure;
using base::Result;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

/// The most bytes of a body, both received and unpacked.
constexpr std::size_t kBodyLimit = std::size_t{8} << 20;
/// The most bytes of all the headers of an answer, those of interim answers included.
constexpr std::size_t kHeaderLimit = std::size_t{256} << 10;

constexpr const char* kTooMuch = "sent more than a page or a chart can have";
constexpr const char* kUnpackable = "sent an answer that cannot be unpacked";

Failure failure(int code, std::string reason) {
    return Failure(Error{"Transport", code, std::move(reason)});
}

}  // namespace

/// A download under way. libcurl calls the static functions.
struct HttpWorker::Transfer {
    Transfer(const CurlLibrary& library, Id number, HttpDownload download)
        : curl(library), id(number), asked(std::move(download)), easy(curl.easyInit()) {}
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer() {
        curl.easyCleanup(easy);
        curl.slistFreeAll(headers);
    }

    void setUp(CURLSH* share, std::string& authorities);
    [[nodiscard]] std::optional<std::string> header(const char* name) const;
    [[nodiscard]] std::string explanation(CURLcode code) const;
    [[nodiscard]] Result<HttpAnswer> answer(CURLcode code);

    void refuse(CURLcode code, const char* why) { refusal = Error{"Transport", code, why}; }
    void beginBody();
    [[nodiscard]] bool takeHeader(std::size_t size);
    [[nodiscard]] bool takeBody(std::string_view bytes);

    static std::size_t onHeader(const char*, std::size_t, std::size_t size, void* transfer) {
        return static_cast<Transfer*>(transfer)->takeHeader(size) ? size : 0;
    }
    static std::size_t onBody(const char* bytes, std::size_t, std::size_t size, void* transfer) {
        return static_cast<Transfer*>(transfer)->takeBody({bytes, size}) ? size : 0;
    }

    const CurlLibrary& curl;
    Id id;
    HttpDownload asked;
    CURL* easy;
    curl_slist* headers = nullptr;
    std::array<char, CURL_ERROR_SIZE> reason{};
    steady_clock::time_point lastBytes = steady_clock::now();
    std::size_t headerBytes = 0;
    std::size_t bodyBytes = 0;  // as received
    std::optional<GzipReader> gzip;
    std::string body;
    std::optional<Error> refusal;  // why the transfer was ended on this side
};

void HttpWorker::Transfer::setUp(CURLSH* share, std::string& authorities) {
    const auto set = [this](CURLoption option, auto value) {
        curl.easySetopt(easy, option, value);
    };
    for (const auto& [name, value] : asked.headers) {
        std::string line = name;
        line.append(": ").append(value);
        headers = curl.slistAppend(headers, line.c_str());
    }
    set(CURLOPT_URL, asked.url.c_str());
    set(CURLOPT_PATH_AS_IS, 1L);
    set(CURLOPT_PROTOCOLS_STR, "https");
    set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    set(CURLOPT_HTTPHEADER, headers);
    set(CURLOPT_COOKIEFILE, "");
    set(CURLOPT_SHARE, share);
    // Refuses a length that is announced and too large, or that no number holds.
    set(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(kBodyLimit));
    set(CURLOPT_HEADERFUNCTION, &onHeader);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_WRITEFUNCTION, &onBody);
    set(CURLOPT_WRITEDATA, this);
    set(CURLOPT_ERRORBUFFER, reason.data());
    set(CURLOPT_NOSIGNAL, 1L);
    // A name lookup that is given up goes on by itself instead of being waited for.
    set(CURLOPT_QUICK_EXIT, 1L);
    if (!authorities.empty()) {
        const curl_blob blob{authorities.data(), authorities.size(), CURL_BLOB_NOCOPY};
        set(CURLOPT_CAINFO_BLOB, &blob);
    }
}

std::optional<std::string> HttpWorker::Transfer::header(const char* name) const {
    curl_header* found = nullptr;
    if (curl.easyHeader(easy, name, 0, CURLH_HEADER, -1, &found) != CURLHE_OK) return std::nullopt;
    return found->value;
}

bool HttpWorker::Transfer::takeHeader(std::size_t size) {
    lastBytes = steady_clock::now();
    headerBytes += size;
    if (headerBytes <= kHeaderLimit) return true;
    refuse(CURLE_RECV_ERROR, "sent more headers than an answer has");
    return false;
}

void HttpWorker::Transfer::beginBody() {
    const std::string encoding = header("Content-Encoding").value_or("identity");
    if (encoding == "gzip") {
        gzip.emplace();
    } else if (encoding != "identity") {
        refuse(CURLE_BAD_CONTENT_ENCODING, kUnpackable);
    }
}

bool HttpWorker::Transfer::takeBody(std::string_view bytes) {
    lastBytes = steady_clock::now();
    if (bodyBytes == 0) beginBody();
    bodyBytes += bytes.size();
    auto outcome = GzipReader::Result::kFine;
    if (gzip) {
        outcome = gzip->read(bytes, body, kBodyLimit);
    } else {
        body += bytes;
    }
    if (outcome == GzipReader::Result::kCorrupt) refuse(CURLE_BAD_CONTENT_ENCODING, kUnpackable);
    if (outcome == GzipReader::Result::kTooLong || bodyBytes > kBodyLimit) {
        refuse(CURLE_FILESIZE_EXCEEDED, kTooMuch);
    }
    return !refusal;
}

std::string HttpWorker::Transfer::explanation(CURLcode code) const {
    const std::string detail = reason.front() != '\0' ? reason.data() : curl.easyStrerror(code);
    switch (code) {
        case CURLE_COULDNT_RESOLVE_HOST:
            return "cannot be found";
        case CURLE_COULDNT_CONNECT: {
            long systemError = 0;
            curl.easyGetinfo(easy, CURLINFO_OS_ERRNO, &systemError);
            return systemError == ECONNREFUSED ? "refused the connection"
                                               : "cannot be reached: " + detail;
        }
        case CURLE_SSL_CONNECT_ERROR:
        case CURLE_PEER_FAILED_VERIFICATION:
        case CURLE_SSL_CACERT_BADFILE:
            return "cannot be reached safely: " + detail;
        case CURLE_GOT_NOTHING:
        case CURLE_PARTIAL_FILE:
            return "closed the connection before its answer was complete";
        case CURLE_FILESIZE_EXCEEDED:
            return kTooMuch;
        case CURLE_OUT_OF_MEMORY:  // how this version tells of a single header beyond 100 KiB
            return "sent longer headers than an answer has";
        default:
            return "gave no usable answer: " + detail;
    }
}

Result<HttpAnswer> HttpWorker::Transfer::answer(CURLcode code) {
    if (refusal) return Failure(*refusal);
    if (code != CURLE_OK) return failure(code, explanation(code));
    // A stream without a byte comes with statuses that have no body.
    if (gzip && !gzip->isComplete()) return failure(CURLE_BAD_CONTENT_ENCODING, kUnpackable);
    long status = 0;
    curl.easyGetinfo(easy, CURLINFO_RESPONSE_CODE, &status);
    HttpAnswer answer{std::move(body), std::nullopt};
    if (status >= 300 && status < 400) answer.location = header("Location");
    return answer;
}

HttpWorker::HttpWorker(Finished finished, std::string authorities)
    : finished_(std::move(finished)),
      authorities_(std::move(authorities)),
      thread_([this] { run(); }) {}

HttpWorker::~HttpWorker() {
    give([](Orders& orders) { orders.isOver = true; });
    thread_.join();
}

HttpWorker::Id HttpWorker::start(HttpDownload download) {
    const Id id = ++lastId_;
    give([&](Orders& orders) { orders.started.emplace_back(id, std::move(download)); });
    return id;
}

void HttpWorker::cancel(Id id) {
    give([=](Orders& orders) { orders.canceled.push_back(id); });
}

void HttpWorker::give(const std::function<void(Orders&)>& order) {
    const std::lock_guard lock(mutex_);
    order(orders_);
    if (wakeable_ != nullptr) CurlLibrary::get()->multiWakeup(wakeable_);
    ordered_.notify_one();
}

void HttpWorker::run() {
    if (const CurlLibrary* const curl = CurlLibrary::get()) return serve(*curl);
    std::unique_lock lock(mutex_);
    while (!orders_.isOver) {
        for (const auto& [id, download] : std::exchange(orders_.started, {})) {
            finished_(id, failure(CURLE_FAILED_INIT, "cannot be reached without libcurl"));
        }
        ordered_.wait(lock);
    }
}

void HttpWorker::serve(const CurlLibrary& curl) {
    multi_ = curl.multiInit();
    share_ = curl.shareInit();
    curl.shareSetopt(share_, CURLSHOPT_SHARE, CURL_LOCK_DATA_COOKIE);
    while (true) {
        Orders orders;
        {
            const std::lock_guard lock(mutex_);
            wakeable_ = orders_.isOver ? nullptr : multi_;
            std::swap(orders, orders_);
        }
        if (orders.isOver) break;
        obey(curl, std::move(orders));
        int running = 0;
        curl.multiPerform(multi_, &running);
        finishTransfers(curl);
        endOverdue(curl);
        curl.multiPoll(multi_, nullptr, 0, millisecondsToNextDeadline(), nullptr);
    }
    for (const auto& transfer : transfers_) curl.multiRemoveHandle(multi_, transfer->easy);
    transfers_.clear();
    curl.multiCleanup(multi_);
    curl.shareCleanup(share_);
}

void HttpWorker::obey(const CurlLibrary& curl, Orders&& orders) {
    for (auto& [id, download] : orders.started) {
        auto transfer = std::make_unique<Transfer>(curl, id, std::move(download));
        transfer->setUp(share_, authorities_);
        curl.multiAddHandle(multi_, transfer->easy);
        transfers_.push_back(std::move(transfer));
    }
    for (const Id id : orders.canceled) {
        const auto found = std::find_if(transfers_.begin(), transfers_.end(),
                                        [=](const auto& known) { return known->id == id; });
        if (found == transfers_.end()) continue;
        curl.multiRemoveHandle(multi_, (*found)->easy);
        transfers_.erase(found);
    }
}

void HttpWorker::finishTransfers(const CurlLibrary& curl) {
    int left = 0;
    while (const CURLMsg* const message = curl.multiInfoRead(multi_, &left)) {
        const auto found = std::find_if(
            transfers_.begin(), transfers_.end(),
            [=](const auto& transfer) { return transfer->easy == message->easy_handle; });
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): libcurl's message is one.
        end(curl, **found, (*found)->answer(message->data.result));
    }
}

void HttpWorker::endOverdue(const CurlLibrary& curl) {
    const auto now = steady_clock::now();
    for (std::size_t index = transfers_.size(); index-- > 0;) {
        Transfer& transfer = *transfers_[index];
        if (now >= transfer.asked.deadline) {
            end(curl, transfer, failure(CURLE_OPERATION_TIMEDOUT, "took too long to answer"));
        } else if (now >= transfer.lastBytes + transfer.asked.idle) {
            end(curl, transfer, failure(CURLE_OPERATION_TIMEDOUT, "sent nothing for too long"));
        }
    }
}

int HttpWorker::millisecondsToNextDeadline() const {
    milliseconds next = std::chrono::minutes(1);
    const auto now = steady_clock::now();
    for (const auto& transfer : transfers_) {
        const auto first =
            std::min(transfer->asked.deadline, transfer->lastBytes + transfer->asked.idle);
        next = std::min(next, std::chrono::ceil<milliseconds>(first - now));
    }
    return static_cast<int>(std::max(next, milliseconds(0)).count());
}

void HttpWorker::end(const CurlLibrary& curl, Transfer& transfer, Result<HttpAnswer> answer) {
    const Id id = transfer.id;
    curl.multiRemoveHandle(multi_, transfer.easy);
    std::erase_if(transfers_, [&](const auto& known) { return known.get() == &transfer; });
    finished_(id, std::move(answer));
}

}  // namespace kalvo::net
