#include "platform/qt/qt_http_session.h"

#include <optional>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <QHostAddress>
#include <QNetworkReply>
#include <QTcpServer>

#include "tests/support/run_until.h"
#include "tests/support/tls_server.h"

namespace kalvo::platform {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using std::chrono_literals::operator""s;
using std::chrono_literals::operator""ms;
using tests::TlsAnswer;
using tests::TlsServer;
using Answer = Result<std::string>;

Task<void> keep(Task<Answer> task, std::optional<Answer>* answer) {
    answer->emplace(co_await std::move(task));
}

class QtHttpSessionTest : public testing::Test {
 protected:
    static void SetUpTestSuite() { TlsServer::trustTestAuthority(); }

    Answer get(HttpRequest request) {
        std::optional<Answer> answer;
        scope.start(keep(session.get(std::move(request)), &answer));
        EXPECT_TRUE(tests::runUntil([&] { return answer.has_value(); }));
        return answer.value_or(Failure({"Test", 0, "no answer"}));
    }
    Answer get(const std::string& url, std::chrono::milliseconds timeout = 20s) {
        return get(HttpRequest{.url = url, .headers = {}, .timeout = timeout});
    }
    /// The error of a request; for one that succeeds, an error that says so.
    Error errorAt(const std::string& url, std::chrono::milliseconds timeout = 20s) {
        const Answer answer = get(url, timeout);
        return answer ? Error{"None", 0, "an answer of " + std::to_string(answer->size())}
                      : answer.error();
    }
    Error errorOf(const TlsAnswer& answer, std::chrono::milliseconds timeout = 20s) {
        server.answer("/", answer);
        return errorAt(server.origin() + "/", timeout);
    }

    TlsServer server;
    QtHttpSession session;
    TaskScope scope;
};

TEST_F(QtHttpSessionTest, SendsTheAddressAndTheHeadersAsTheyAre) {
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
                      HasSubstr("\r\nUser-Agent: Agent/1.0 (X)\r\nReferer: https://r/\r\n")));
}

TEST_F(QtHttpSessionTest, GivesTheBodyWhateverTheStatus) {
    for (const char* status :
         {"200 OK", "203 X", "301 No Location", "400 X", "401 X", "403 X", "404 X", "405 X",
          "409 X", "410 X", "418 X", "500 X", "501 X", "503 X", "599 X"}) {
        server.answer("/", TlsAnswer::withStatus(status, "{\"a\": 1}"));
        const Answer answer = get(server.origin() + "/");
        EXPECT_EQ(answer, "{\"a\": 1}")
            << status << (answer ? "" : ": " + answer.error().description());
    }
}

TEST_F(QtHttpSessionTest, FollowsFiveRedirectsAndNoMore) {
    for (const auto& [from, to] : {std::pair{"/0", "1"},
                                   {"/1", "/2"},
                                   {"/2", "./3"},
                                   {"/3", "4"},
                                   {"/4", "5"},
                                   {"/5", "6"}}) {
        server.answer(from, TlsAnswer::redirect(to));
    }
    server.answer("/6", TlsAnswer::ok("arrived"));
    EXPECT_EQ(get(server.origin() + "/1"), "arrived");
    EXPECT_EQ(errorAt(server.origin() + "/0"),
              (Error{"Transport", QNetworkReply::TooManyRedirectsError,
                     "127.0.0.1 sends its readers on from one address to the next without end"}));
}

TEST_F(QtHttpSessionTest, GoesToHttpsAddressesOnly) {
    QTcpServer plain;
    ASSERT_TRUE(plain.listen(QHostAddress(TlsServer::kAddress)));
    const std::string plainAddress = "http://127.0.0.1:" + std::to_string(plain.serverPort()) + "/";
    for (const std::string& target :
         {plainAddress, std::string("file:///etc/hostname"), std::string("ftp://127.0.0.1/"),
          std::string("data:text/plain,x"), std::string("qrc:/x"), std::string("https://[")}) {
        EXPECT_EQ(errorOf(TlsAnswer::redirect(target)).code, QNetworkReply::InsecureRedirectError)
            << target;
        EXPECT_EQ(errorAt(target).code, QNetworkReply::ProtocolUnknownError) << target;
    }
    EXPECT_FALSE(plain.hasPendingConnections());
}

TEST_F(QtHttpSessionTest, UnpacksUpToTheLimit) {
    const auto packed = [](const QByteArray& body) {
        // A zlib stream, which is what HTTP calls deflate, behind the length that Qt adds.
        const QByteArray stream = qCompress(body, 9).mid(4);
        return TlsAnswer{.bytes =
                             "HTTP/1.1 200 OK\r\nContent-Encoding: deflate\r\nContent-Length: " +
                             std::to_string(stream.size()) + "\r\n\r\n" + stream.toStdString()};
    };
    constexpr qsizetype kLimit = 8 << 20;
    server.answer("/", packed(QByteArray(kLimit, 'x')));
    EXPECT_EQ(get(server.origin() + "/").value_or("").size(), kLimit);
    EXPECT_EQ(errorOf(packed(QByteArray(kLimit + 1, 'x'))).message,
              "127.0.0.1 sent more than a page or a chart can have");
    EXPECT_EQ(errorOf(packed(QByteArray(16 * kLimit, 'x'))).message,
              "127.0.0.1 sent an answer that cannot be unpacked");
}

TEST_F(QtHttpSessionTest, CutsOffWhoKeepsItWaiting) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(errorOf({.bytes = "HTTP/1.1 200 OK\r\nContent-"}, 150ms).message,
              "127.0.0.1 sent nothing for too long");
    EXPECT_EQ(errorOf({.bytes = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nbody"}, 150ms).message,
              "127.0.0.1 sent nothing for too long");
    TlsAnswer dripping = TlsAnswer::ok(std::string(100'000, 'x'));
    dripping.perByte = 1ms;
    EXPECT_EQ(errorOf(dripping, 400ms).message, "127.0.0.1 took too long to answer");
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

TEST_F(QtHttpSessionTest, GivesTheDownloadUpWithItsTask) {
    server.answer("/", {.bytes = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nbody"});
    std::optional<Answer> answer;
    {
        TaskScope closing;
        closing.start(keep(session.get({server.origin() + "/", {}, 20s}), &answer));
        ASSERT_TRUE(tests::runUntil([&] { return server.requests().size() == 1; }));
        EXPECT_EQ(server.openConnections(), 1);
    }
    EXPECT_TRUE(tests::runUntil([&] { return server.openConnections() == 0; }));
    EXPECT_FALSE(answer);
}

TEST_F(QtHttpSessionTest, NamesTheHostAndTheTroubleInOneSentence) {
    EXPECT_EQ(errorOf({.bytes = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nbody",
                       .then = TlsAnswer::Then::close})
                  .message,
              "127.0.0.1 closed the connection before its answer was complete");
    TlsServer untrusted(tests::TestAuthority().issue(TlsServer::kAddress, 1));
    EXPECT_THAT(errorAt(untrusted.origin() + "/").message,
                StartsWith("127.0.0.1 cannot be reached safely: "));
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress(TlsServer::kAddress)));
    const std::string address = "https://127.0.0.1:" + std::to_string(closed.serverPort()) + "/";
    closed.close();
    EXPECT_EQ(errorAt(address).message, "127.0.0.1 refused the connection");
    EXPECT_EQ(errorAt("https://nowhere.invalid/").message, "nowhere.invalid cannot be found");
}

}  // namespace
}  // namespace kalvo::platform
