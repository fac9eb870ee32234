#include "net/qt/curl_http_session.h"

#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <curl/curl.h>
#include <gmock/gmock.h>
#include <QCoreApplication>
#include <QEvent>
#include <QHostAddress>
#include <QTcpServer>
#include <QTimer>

#include "tests/support/gzip.h"
#include "tests/support/run_until.h"
#include "tests/support/tls_server.h"

namespace kalvo::net {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using std::chrono_literals::operator""s;
using std::chrono_literals::operator""ms;
using tests::TlsAnswer;
using tests::TlsServer;
using Answer = base::Result<std::string>;

base::Task<void> keep(base::Task<Answer> task, std::optional<Answer>* answer) {
    answer->emplace(co_await std::move(task));
}

class CurlHttpSessionTest : public testing::Test {
 protected:
    Answer get(HttpRequest request) {
        std::optional<Answer> answer;
        scope.start(keep(session.get(std::move(request)), &answer));
        EXPECT_TRUE(tests::runUntil([&] { return answer.has_value(); }));
        return answer.value_or(base::Failure({"Test", 0, "no answer"}));
    }
    Answer get(const std::string& url, std::chrono::milliseconds timeout = 20s) {
        return get(HttpRequest{.url = url, .headers = {}, .timeout = timeout});
    }
    /// The error of a request, or one that tells the size of the body.
    base::Error errorAt(const std::string& url, std::chrono::milliseconds timeout = 20s) {
        const Answer answer = get(url, timeout);
        return answer ? base::Error{"None", 0,
                                    "127.0.0.1 sent " + std::to_string(answer->size()) + " bytes"}
                      : answer.error();
    }
    /// What such an error says after the host's name.
    std::string outcomeAt(const std::string& origin, std::chrono::milliseconds timeout = 20s) {
        return errorAt(origin + "/", timeout).message.substr(std::string("127.0.0.1 ").size());
    }

    TlsServer server;
    const std::string expiredIdentity = tests::makeTlsIdentity(TlsServer::kAddress, -1);
    const std::string misnamedIdentity = tests::makeTlsIdentity("127.0.0.2", 1);
    CurlHttpSession session{TlsServer::defaultIdentity() + expiredIdentity + misnamedIdentity};
    base::TaskScope scope;
};

TEST_F(CurlHttpSessionTest, SendsTheAddressAndTheHeadersAsTheyAre) {
    const std::string path =
        "/en/search?query=Rome%20&%20citt%C3%A0%22%23%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D"
        "-._~!$&'()*+,;=:@/?aZ09";
    server.answer(path, TlsAnswer::ok("found"));
    EXPECT_EQ(
        get(HttpRequest{.url = server.origin() + path,
                        .headers = {{"User-Agent", "Agent/1.0 (X)"}, {"Referer", "https://r/"}},
                        .timeout = 20s}),
        "found");
    ASSERT_EQ(server.requests().size(), 1U);
    EXPECT_THAT(server.requests()[0],
                AllOf(StartsWith("GET " + path + " HTTP/1.1\r\n"),
                      HasSubstr("\r\nUser-Agent: Agent/1.0 (X)\r\nReferer: https://r/\r\n"),
                      HasSubstr("\r\nAccept-Encoding: gzip\r\nAccept-Language: it-IT,en,*\r\n")));
}

TEST_F(CurlHttpSessionTest, KeepsConnectionsAndCookies) {
    server.answer("/", {.bytes = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n"
                                 "Set-Cookie: seen=1\r\n\r\nbody"});
    for (int request = 0; request < 2; ++request) EXPECT_EQ(get(server.origin() + "/"), "body");
    EXPECT_EQ(server.openConnections(), 1);
    EXPECT_THAT(server.requests()[1], HasSubstr("\r\nCookie: seen=1\r\n"));
}

TEST_F(CurlHttpSessionTest, GivesTheBodyWhateverTheStatus) {
    for (const char* status :
         {"200 OK", "203 X", "301 No Location", "400 X", "401 X", "403 X", "404 X", "405 X",
          "407 X", "409 X", "410 X", "418 X", "500 X", "501 X", "503 X", "599 X"}) {
        server.answer("/", TlsAnswer::withStatus(status, "{\"a\": 1}"));
        const Answer answer = get(server.origin() + "/");
        EXPECT_EQ(answer, "{\"a\": 1}")
            << status << (answer ? "" : ": " + answer.error().description());
    }
}

TEST_F(CurlHttpSessionTest, FollowsFiveRedirectsAndNoMore) {
    for (const char* to : {"1", "/2", "./3", "4", "5", "6"}) {
        const std::string from = "/" + std::to_string(to[std::strlen(to) - 1] - '1');
        server.answer(from, TlsAnswer::redirect(to));
    }
    server.answer("/6", TlsAnswer::ok("arrived"));
    EXPECT_EQ(get(server.origin() + "/1"), "arrived");
    EXPECT_EQ(
        errorAt(server.origin() + "/0"),
        (base::Error{"Transport", CURLE_TOO_MANY_REDIRECTS,
                     "127.0.0.1 is the last of too many addresses that send their readers on"}));
    server.answer("/", TlsAnswer::redirect("https://nowhere.invalid/"));
    EXPECT_EQ(errorAt(server.origin() + "/").message, "nowhere.invalid cannot be found");
}

TEST_F(CurlHttpSessionTest, GoesToHttpsAddressesOnly) {
    QTcpServer plain;
    ASSERT_TRUE(plain.listen(QHostAddress(TlsServer::kAddress)));
    const std::string plainAddress = "http://127.0.0.1:" + std::to_string(plain.serverPort()) + "/";
    for (const std::string& target :
         {plainAddress, std::string("file:///etc/hostname"), std::string("ftp://127.0.0.1/"),
          std::string("data:text/plain,x"), std::string("qrc:/x"), std::string("https://["),
          std::string("https:///x"), "https:/" + server.origin().substr(8) + "/",
          "https:\\\\" + server.origin().substr(8) + "\\"}) {
        server.answer("/", TlsAnswer::redirect(target));
        EXPECT_EQ(errorAt(server.origin() + "/").code, CURLE_UNSUPPORTED_PROTOCOL) << target;
        EXPECT_EQ(errorAt(target).code, CURLE_UNSUPPORTED_PROTOCOL) << target;
    }
    EXPECT_FALSE(plain.hasPendingConnections());
}

/// What a server does wrong or oddly, and what comes of it: the size of the body or the beginning
/// of what the error says after the host's name.
struct ServerBehavior {
    const char* name;
    TlsAnswer answer;
    const char* outcome;
    // Whoever fails otherwise than by time gets all that a busy machine may need.
    std::chrono::milliseconds timeout = 20s;
};

TlsAnswer raw(const std::string& headers, const std::string& body) {
    return {.bytes = "HTTP/1.1 200 OK\r\n" + headers + "\r\n\r\n" + body};
}

TlsAnswer closing(TlsAnswer answer) {
    answer.closes = true;
    return answer;
}

TlsAnswer dripping(TlsAnswer answer) {
    answer.perByte = 1ms;
    return answer;
}

TlsAnswer unpackedFrom(const std::string& stream) {
    return raw("Content-Encoding: gzip\r\nContent-Length: " + std::to_string(stream.size()),
               stream);
}

/// An answer whose body goes on with the same bytes until nobody listens.
TlsAnswer endless(TlsAnswer answer, std::string_view bytes) {
    while (answer.repeated.size() < 100'000) answer.repeated += bytes;
    return answer;
}

TEST_F(CurlHttpSessionTest, EndsAsPromisedWhateverTheServerDoes) {
    constexpr std::size_t kLimit = 8 << 20;
    const char* const kSilent = "sent nothing for too long";
    const char* const kCut = "closed the connection before its answer was complete";
    const char* const kTooMuch = "sent more than a page or a chart can have";
    const char* const kUnpackable = "sent an answer that cannot be unpacked";
    const char* const kUnusable = "gave no usable answer: ";
    const std::string packed = tests::gzip("body");
    std::string damaged = packed;
    damaged[packed.size() - 8] ^= 1;
    // A stream's header, and a block that is stored and empty (RFC 1951, 3.2.4).
    const std::string begun = packed.substr(0, 10);
    constexpr std::string_view kEmptyBlock("\0\0\0\xFF\xFF", 5);
    std::string emptyBlocks;
    for (int block = 0; block < 1000; ++block) emptyBlocks += kEmptyBlock;
    std::string manyHeaders = "Content-Length: 4";
    for (int index = 0; index < 200; ++index) manyHeaders += "\r\nX: " + std::string(1000, 'x');
    std::string interim = "HTTP/1.1 102 X\r\n\r\nHTTP/1.1 103 X\r\nLink: <x>\r\n\r\n";
    for (const auto& [name, answer, outcome, timeout] : std::vector<ServerBehavior>{
             {"interim answers", {.bytes = interim + TlsAnswer::ok("body").bytes}, "sent 4 bytes"},
             {"many headers", raw(manyHeaders, "body"), "sent 4 bytes"},
             {"ends by closing", closing(raw("Connection: close", "body")), "sent 4 bytes"},
             {"packed", unpackedFrom(packed), "sent 4 bytes"},
             {"packed, byte by byte", dripping(unpackedFrom(packed)), "sent 4 bytes"},
             {"packed, with more behind it", unpackedFrom(packed + "x"), kUnpackable},
             {"packed, with another checksum", unpackedFrom(damaged), kUnpackable},
             {"packed nothing", unpackedFrom(""), "sent 0 bytes"},
             {"packed to the limit", unpackedFrom(tests::gzip(std::string(kLimit, 'x'))),
              "sent 8388608 bytes"},
             {"packed too much", unpackedFrom(tests::gzip(std::string(kLimit + 1, 'x'))), kTooMuch},
             {"packed nothing without end",
              endless(raw("Content-Encoding: gzip", begun), kEmptyBlock), kTooMuch},
             {"packed, not to its end", unpackedFrom(packed.substr(0, packed.size() - 1)),
              kUnpackable},
             {"packed in another way", raw("Content-Encoding: br\r\nContent-Length: 4", "body"),
              kUnpackable},
             {"a page of errors, not packed as it says",
              {.bytes =
                   "HTTP/1.1 404 X\r\nContent-Encoding: gzip\r\nContent-Length: 4\r\n\r\nbody"},
              kUnpackable},
             {"too much", endless(raw("Connection: close", ""), " "), kTooMuch},
             {"an absurd length", raw("Content-Length: 99999999999999999999", "body"), kTooMuch},
             {"a negative length", raw("Content-Length: -4", "body"), kUnusable},
             {"no size of a chunk", raw("Transfer-Encoding: chunked", "4\r\nbody\r\nx\r\n"),
              kUnusable},
             {"a negative size of a chunk", raw("Transfer-Encoding: chunked", "-4\r\nbody"),
              kUnusable},
             {"nothing", closing({.bytes = ""}), kCut},
             {"cut before its length", closing(raw("Content-Length: 9", "body")), kCut},
             {"cut in a chunk", closing(raw("Transfer-Encoding: chunked", "FFF\r\nbody")), kCut},
             {"cut before the last chunk",
              closing(raw("Transfer-Encoding: chunked", "4\r\nbody\r\n")), kCut},
             {"no HTTP", closing({.bytes = "body"}), kUnusable},
             {"endless headers", endless({.bytes = "HTTP/1.1 200 OK\r\n"}, "X: x\r\n"),
              "sent more headers than an answer has"},
             {"an endless header", endless({.bytes = "HTTP/1.1 200 OK\r\nX: "}, "x"),
              "sent longer headers than an answer has"},
             {"stalls in a header", {.bytes = "HTTP/1.1 200 OK\r\nContent-Le"}, kSilent, 150ms},
             {"stalls in the body", raw("Content-Length: 9", "body"), kSilent, 150ms},
             {"drips, and packed nothing",
              dripping(raw("Content-Encoding: gzip", begun + emptyBlocks)),
              "took too long to answer", 150ms},
         }) {
        server.answer("/", answer);
        EXPECT_THAT(outcomeAt(server.origin(), timeout), StartsWith(outcome)) << name;
    }
}

TEST_F(CurlHttpSessionTest, ReachesNobodyWhoIsNotThereOrNotTrusted) {
    const std::string prefix = "https://" + std::string(TlsServer::kAddress) + ":";
    QTcpServer closed;
    QTcpServer mute;  // takes connections, but never begins a handshake
    for (QTcpServer* listener : {&closed, &mute}) {
        ASSERT_TRUE(listener->listen(QHostAddress(TlsServer::kAddress)));
    }
    const std::string refusing = prefix + std::to_string(closed.serverPort());
    closed.close();
    const TlsServer untrusted(tests::makeTlsIdentity(TlsServer::kAddress, 2));
    const TlsServer expired(expiredIdentity);
    const TlsServer misnamed(misnamedIdentity);
    EXPECT_EQ(outcomeAt(refusing), "refused the connection");
    EXPECT_EQ(outcomeAt(prefix + std::to_string(mute.serverPort()), 150ms),
              "sent nothing for too long");
    EXPECT_EQ(errorAt("https://nowhere.invalid/").message, "nowhere.invalid cannot be found");
    for (const TlsServer* doubtful : {&untrusted, &expired, &misnamed}) {
        EXPECT_THAT(outcomeAt(doubtful->origin()), StartsWith("cannot be reached safely: "));
        EXPECT_THAT(doubtful->requests(), IsEmpty());
    }
}

/// Gives up after the first event of a request, then after the second, and so on until the request
/// comes to its end before that.
TEST_F(CurlHttpSessionTest, MayEndAtAnyMomentOfARequest) {
    server.answer("/1", TlsAnswer::redirect("/2"));
    server.answer("/2", TlsAnswer::ok("body"));
    for (int moment = 0;; ++moment) {
        std::optional<base::TaskScope> closing(std::in_place);
        std::optional<CurlHttpSession> ending(TlsServer::defaultIdentity());
        std::optional<Answer> answer;
        closing->start(keep(ending->get({server.origin() + "/1", {}, 20s}), &answer));
        for (int event = 0; event < moment && !answer; ++event) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        const bool hasEnded = answer.has_value();
        closing.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ending.reset();
        ASSERT_TRUE(tests::runUntil([&] { return server.openConnections() == 0; }));
        ASSERT_EQ(answer.has_value(), hasEnded);
        if (!hasEnded) continue;
        EXPECT_GT(moment, 1);
        break;
    }
}

TEST_F(CurlHttpSessionTest, LeavesRequestsUnfinishedWhenTheApplicationQuits) {
    server.answer("/", {.bytes = "HTTP/1.1 200 OK\r\n"});
    for (const bool hasAsked : {false, true}) {
        std::optional<Answer> answer;
        base::TaskScope closing;
        closing.start(keep(session.get({server.origin() + "/", {}, 20s}), &answer));
        ASSERT_TRUE(tests::runUntil([&] { return !hasAsked || !server.requests().empty(); }));
        QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        QCoreApplication::exec();
        EXPECT_FALSE(answer);
    }
}

}  // namespace
}  // namespace kalvo::net
