// Every request of the web client against every fault of the web, over real TLS: a search, a
// climate page, its three charts and the name of a point.

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <QCoreApplication>
#include <QEvent>
#include <QHostAddress>
#include <QTcpServer>
#include <QTimer>

#include "online/meteoblue_scraper.h"
#include "platform/qt/qt_http_session.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/run_until.h"
#include "tests/support/tls_server.h"

namespace kalvo::online {
namespace {

using std::chrono_literals::operator""ms;
using tests::TlsAnswer;
using tests::TlsServer;

/// The requests that can go wrong.
enum Point { kSearch, kPage, kSpeeds, kRose, kCloud, kName };
constexpr std::array kPoints{kSearch, kPage, kSpeeds, kRose, kCloud, kName};

std::string path(Point point) {
    switch (point) {
        case kSearch:
            return "/en/server/search/query3?query=Roma";
        case kPage:
            return "/en/weather/forecast/modelclimate/roma";
        case kSpeeds:
            return "/chart?wind_speeds";
        case kRose:
            return "/chart?wind_rose";
        case kCloud:
            return "/chart?cloud_coverage";
        case kName:
            return "/reverse?lat=41.9&lon=12.5&format=json&accept-language=it&zoom=10";
    }
    return {};
}

/// An HTTP session that gives the requests to one address little time, so that a test of timeouts
/// does not wait for the real ones, and the others all of it.
class HastySession final : public platform::HttpSession {
 public:
    explicit HastySession(std::string hastyUrl) : hastyUrl_(std::move(hastyUrl)) {}

    [[nodiscard]] platform::Task<platform::Result<std::string>> get(
        platform::HttpRequest request) override {
        if (request.url == hastyUrl_) request.timeout = 300ms;
        return session_.get(std::move(request));
    }

 private:
    std::string hastyUrl_;
    platform::QtHttpSession session_;
};

enum class Timeout { kReal, kShort };

/// The two services and a client of theirs. One request point may have an origin of its own.
class World {
 public:
    explicit World(Point faulty,
                   Timeout timeout = Timeout::kReal,
                   std::optional<std::string> faultyOrigin = std::nullopt)
        : faulty_(faulty), faultyOrigin_(std::move(faultyOrigin)), timeout_(timeout) {
        for (const Point point : kPoints) server_.answer(path(point), TlsAnswer::ok(body(point)));
    }

    [[nodiscard]] std::string body(Point point) const {
        switch (point) {
            case kSearch:
                return R"({"results": [{"name": "Roma", "url": "roma", "lat": 41.9, "lon": 12.5}]})";
            case kPage:
                return placeholder(kSpeeds) + placeholder(kRose) + placeholder(kCloud);
            case kSpeeds:
            case kRose:
                return R"({"series": [{"name": "2-5 km/h", "data": [5]}]})";
            case kCloud:
                return R"({"series": [{"name": "Sunny", "data": [5]}]})";
            case kName:
                return R"({"address": {"city": "Roma"}})";
        }
        return {};
    }

    void answerAtFaultyPoint(const TlsAnswer& answer) { server_.answer(path(faulty_), answer); }

    /// Starts the operation that the faulty point belongs to.
    void start() {
        if (faulty_ == kSearch) return scope_->start(search());
        if (faulty_ == kName) return scope_->start(name());
        scope_->start(climate());
    }

    /// As when the window closes, with everything in it.
    void close() {
        scope_.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        session_.reset();
    }

    /// Whether a request has arrived.
    [[nodiscard]] bool hasAsked() const { return !server_.requests().empty(); }

    /// What came of the operation, in a word.
    [[nodiscard]] const std::string& outcome() const { return outcome_; }

 private:
    [[nodiscard]] std::string originOf(Point point) const {
        return point == faulty_ && faultyOrigin_ ? *faultyOrigin_ : server_.origin();
    }
    [[nodiscard]] std::string placeholder(Point chart) const {
        return R"(<i id="blooimage" data-url=")" + originOf(chart).substr(6) + path(chart) + "\">";
    }

    platform::Task<void> search() {
        const auto places = co_await scraper_.searchLocations("Roma", {}, {});
        outcome_ = !places           ? places.error().domain
                   : places->empty() ? "none"
                                     : places->front().name;
    }
    platform::Task<void> climate() {
        const auto climate = co_await scraper_.fetchClimateData("roma");
        outcome_ = !climate             ? climate.error().domain
                   : climate->solarData ? "climate"
                                        : "climate without sky";
    }
    platform::Task<void> name() {
        outcome_ = co_await scraper_.reverseGeocode(41.9, 12.5, "no name");
        if (!diagnostics_.lines.empty()) outcome_ += ", said why";
    }

    Point faulty_;
    std::optional<std::string> faultyOrigin_;
    Timeout timeout_;
    TlsServer server_;
    tests::RecordingDiagnostics diagnostics_;
    std::unique_ptr<platform::HttpSession> session_ = std::make_unique<HastySession>(
        timeout_ == Timeout::kShort ? originOf(faulty_) + path(faulty_) : "");
    MeteoblueScraper scraper_{
        *session_,
        {.meteoblue = originOf(faulty_ == kPage ? kPage : kSearch), .nominatim = originOf(kName)},
        diagnostics_};
    std::string outcome_;
    std::optional<platform::TaskScope> scope_{std::in_place};
};

using Outcomes = std::array<const char*, kPoints.size()>;
const Outcomes kSound{"Roma", "climate", "climate", "climate", "climate", "Roma"};
const Outcomes kTransportFailure{"Transport", "Transport",           "Transport",
                                 "Transport", "climate without sky", "no name, said why"};
const Outcomes kUnreadable{"none", "EndpointsNotFound",   "JSON",
                           "JSON", "climate without sky", "no name"};
const Outcomes kNotUtf8{"none", "InvalidData", "JSON", "JSON", "climate without sky", "no name"};
const Outcomes kArray{"none",        "EndpointsNotFound",   "InvalidJSON",
                      "InvalidJSON", "climate without sky", "no name"};

/// What the service does wrong, given the body it should have sent.
struct Fault {
    const char* name;
    std::function<TlsAnswer(const std::string& body)> answer;
    const Outcomes& outcomes;

    friend std::ostream& operator<<(std::ostream& out, const Fault& fault) {
        return out << fault.name;
    }
};

constexpr auto kClose = TlsAnswer::Then::close;

TlsAnswer withHeaders(const std::string& headers, const std::string& body) {
    return {.bytes = "HTTP/1.1 200 OK\r\n" + headers + "\r\n\r\n" + body};
}

/// A zlib stream, which is what HTTP calls deflate: what Qt writes behind a length of four bytes.
std::string packed(const std::string& body) {
    return qCompress(QByteArray::fromStdString(body)).mid(4).toStdString();
}

TlsAnswer closing(TlsAnswer answer) {
    answer.then = kClose;
    return answer;
}

TlsAnswer dripping(TlsAnswer answer) {
    answer.perByte = 5ms;
    return answer;
}

const std::vector<Fault> kFaults{
    {"ClosesAtOnce", [](const auto&) { return closing({.bytes = ""}); }, kTransportFailure},
    {"StallsInTheHeader",
     [](const auto&) { return TlsAnswer{.bytes = "HTTP/1.1 200 OK\r\nContent-Le"}; },
     kTransportFailure},
    {"StallsInTheBody",
     [](const auto& body) {
         TlsAnswer answer = TlsAnswer::ok(body);
         answer.bytes.pop_back();
         return answer;
     },
     kTransportFailure},
    {"Drips",
     [](const auto& body) { return dripping(TlsAnswer::ok(body + std::string(9000, ' '))); },
     kTransportFailure},
    {"BreaksOffBeforeItsLength",
     [](const auto& body) {
         return closing(withHeaders("Content-Length: " + std::to_string(body.size() + 1), body));
     },
     kTransportFailure},
    {"BreaksOffInAChunk",
     [](const auto& body) {
         return closing(withHeaders("Transfer-Encoding: chunked", "FFF\r\n" + body));
     },
     kTransportFailure},
    {"BreaksOffBeforeTheLastChunk",
     [](const auto& body) {
         TlsAnswer answer = withHeaders("Transfer-Encoding: chunked", "");
         for (const char byte : body) answer.bytes += std::string("1\r\n") + byte + "\r\n";
         return closing(answer);
     },
     kTransportFailure},
    {"SendsEndlessHeaders",
     [](const auto&) {
         return TlsAnswer{.bytes = "HTTP/1.1 200 OK\r\nX: " + std::string(4 << 20, 'x')};
     },
     kTransportFailure},
    {"SendsTooMuch",
     [](const auto& body) { return TlsAnswer::ok(body + std::string(9 << 20, ' ')); },
     kTransportFailure},
    {"SendsABomb",
     [](const auto&) {
         static const std::string stream = packed(std::string(32 << 20, ' '));
         return withHeaders("Content-Encoding: deflate", stream);
     },
     kTransportFailure},
    {"SendsWhatCannotBeUnpacked",
     [](const auto& body) {
         return withHeaders(
             "Content-Encoding: gzip\r\nContent-Length: " + std::to_string(body.size()), body);
     },
     kTransportFailure},
    {"RedirectsInCircles", [](const auto&) { return TlsAnswer::redirect("#again"); },
     kTransportFailure},
    {"RedirectsToPlainHttp", [](const auto&) { return TlsAnswer::redirect("http://127.0.0.1/"); },
     kTransportFailure},
    {"SpeaksNoHttp", [](const auto& body) { return closing({.bytes = body}); }, kTransportFailure},
    {"SendsNothing", [](const auto&) { return TlsAnswer::ok(""); }, kUnreadable},
    {"SendsAnErrorPage",
     [](const auto&) {
         return TlsAnswer::withStatus("503 Service Unavailable", "<html>Down</html>");
     },
     kUnreadable},
    {"NestsDeeply",
     [](const auto&) {
         return TlsAnswer::ok("{\"series\": " + std::string(100'000, '[') +
                              std::string(100'000, ']') + "}");
     },
     kUnreadable},
    {"SendsAnArray", [](const auto&) { return TlsAnswer::ok("[1]"); }, kArray},
    {"SendsNoUtf8", [](const auto& body) { return TlsAnswer::ok(body + "\xFF"); }, kNotUtf8},
    {"SaysNotFoundWithAGoodBody",
     [](const auto& body) { return TlsAnswer::withStatus("404 Not Found", body); }, kSound},
    {"SendsManyHeaders",
     [](const auto& body) {
         std::string headers = "Content-Length: " + std::to_string(body.size());
         for (int index = 0; index < 90; ++index) headers += "\r\nX: " + std::string(80, 'x');
         return withHeaders(headers, body);
     },
     kSound},
    {"SendsPacked",
     [](const auto& body) {
         const std::string stream = packed(body);
         return withHeaders(
             "Content-Encoding: deflate\r\nContent-Length: " + std::to_string(stream.size()),
             stream);
     },
     kSound},
    {"EndsByClosing",
     [](const auto& body) { return closing(withHeaders("Connection: close", body)); }, kSound},
};

/// Runs one operation per request point, all at once.
void expectOutcomes(const std::vector<std::unique_ptr<World>>& worlds, const Outcomes& expected) {
    for (const auto& world : worlds) world->start();
    for (std::size_t index = 0; index < worlds.size(); ++index) {
        EXPECT_TRUE(tests::runUntil([&] { return !worlds[index]->outcome().empty(); }));
        EXPECT_EQ(worlds[index]->outcome(), expected[index]) << "at request point " << index;
    }
}

class WebFaults : public testing::TestWithParam<Fault> {};

TEST_P(WebFaults, EndAsTheOperationsPromise) {
    TlsServer::trustTestAuthority();
    std::vector<std::unique_ptr<World>> worlds;
    worlds.reserve(kPoints.size());
    // Whoever expects no failure gets all the time that a busy machine may need.
    const Timeout timeout =
        &GetParam().outcomes == &kTransportFailure ? Timeout::kShort : Timeout::kReal;
    for (const Point point : kPoints) {
        worlds.push_back(std::make_unique<World>(point, timeout));
        worlds.back()->answerAtFaultyPoint(GetParam().answer(worlds.back()->body(point)));
    }
    expectOutcomes(worlds, GetParam().outcomes);
}

INSTANTIATE_TEST_SUITE_P(All, WebFaults, testing::ValuesIn(kFaults), [](const auto& fault) {
    return fault.param.name;
});

/// Faults of the connection, before any answer.
TEST(ConnectionFaults, AreFailuresOfTransport) {
    TlsServer::trustTestAuthority();
    const std::string prefix = "https://" + std::string(TlsServer::kAddress) + ":";
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress(TlsServer::kAddress)));
    const std::string refusing = prefix + std::to_string(closed.serverPort());
    closed.close();
    QTcpServer mute;  // takes connections, but never begins a handshake
    ASSERT_TRUE(mute.listen(QHostAddress(TlsServer::kAddress)));
    const TlsServer untrusted(tests::TestAuthority().issue(TlsServer::kAddress, 1));
    const TlsServer expired(TlsServer::authority().issue(TlsServer::kAddress, -1));
    const TlsServer misnamed(TlsServer::authority().issue("127.0.0.2", 1));
    for (const std::string& origin : {refusing, prefix + std::to_string(mute.serverPort()),
                                      std::string("https://nowhere.invalid"), untrusted.origin(),
                                      expired.origin(), misnamed.origin()}) {
        SCOPED_TRACE(origin);
        std::vector<std::unique_ptr<World>> worlds;
        worlds.reserve(kPoints.size());
        for (const Point point : kPoints)
            worlds.push_back(std::make_unique<World>(point, Timeout::kShort, origin));
        expectOutcomes(worlds, kTransportFailure);
    }
}

/// Runs that many events of an operation, or all that it takes; returns whether it has ended.
bool ended(World& world, int events) {
    for (int event = 0; event < events && world.outcome().empty(); ++event) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return !world.outcome().empty();
}

/// Closes the window after the first event of a request, then after the second, and so on until the
/// request comes to its end before that.
TEST(ClosingTheWindow, EndsRequestsAtAnyMoment) {
    TlsServer::trustTestAuthority();
    for (const Point operation : {kSearch, kCloud, kName}) {
        for (int moment = 0;; ++moment) {
            World world(operation);
            world.start();
            const bool hasEnded = ended(world, moment);
            world.close();
            QCoreApplication::processEvents();
            ASSERT_EQ(world.outcome().empty(), !hasEnded);
            if (hasEnded) {
                EXPECT_GT(moment, 1);
                break;
            }
        }
    }
}

TEST(QuittingTheApplication, LeavesRequestsUnderWayUnfinished) {
    TlsServer::trustTestAuthority();
    for (const bool hasAsked : {false, true}) {
        World world(kName);
        world.answerAtFaultyPoint({.bytes = "HTTP/1.1 200 OK\r\n"});
        world.start();
        ASSERT_TRUE(tests::runUntil([&] { return !hasAsked || world.hasAsked(); }));
        QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        QCoreApplication::exec();
        EXPECT_EQ(world.outcome(), "");
        world.close();
    }
}

}  // namespace
}  // namespace kalvo::online
