#include "tools/monkey/unreliable_session.h"

#include <array>
#include <chrono>
#include <coroutine>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <QTimer>

namespace kalvo::monkey {

namespace {

constexpr int kLongestWait = 60;  // milliseconds

/// Suspends a task for some time; a task given up meanwhile is not resumed.
struct Delay {
    explicit Delay(int milliseconds) { timer.setInterval(milliseconds); }

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> waiting) {
        timer.setSingleShot(true);
        timer.callOnTimeout([waiting] { waiting.resume(); });
        timer.start();
    }
    void await_resume() const noexcept {}

    QTimer timer;
};

/// Counts a request for as long as its task lives.
struct Counted {
    explicit Counted(int& number) : count(number) { ++count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { --count; }
    int& count;
};

bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

base::Task<base::Result<std::string>> UnreliableSession::get(net::HttpRequest request) {
    static const std::array<std::string, 6> kBroken{"",
                                                    "<html>errore</html>",
                                                    R"({"results":[{"name":1},null]})",
                                                    R"({"series":{"data":[]}})",
                                                    std::string(200'000, '['),
                                                    "\xff\xfe not UTF-8"};
    const Counted counted(pending_);
    if (below(3) == 0) {
        Delay delay(below(kLongestWait));
        co_await delay;
    }
    switch (below(6)) {
        case 0:
            co_return base::Failure({"Transport", 1, "the cable was bitten through"});
        case 1:
            co_return kBroken[static_cast<std::size_t>(below(kBroken.size()))];
        default:
            co_return goodAnswer(request.url);
    }
}

std::string UnreliableSession::goodAnswer(const std::string& url) {
    if (contains(url, "/query3")) {
        std::vector<std::string> places(static_cast<std::size_t>(below(30)));
        for (std::string& place : places) {
            place = fmt::format(
                R"({{"name":"Luogo <b>{0}</b>","country":"Terra","lat":{0}.5,"lon":-{0},)"
                R"("url":"p{0}","iso2":"TT"}})",
                below(90));
        }
        return fmt::format(R"({{"results":[{}]}})", fmt::join(places, ","));
    }
    if (contains(url, "/modelclimate/")) {
        return R"(<img id="blooimage" data-url="//c.test/wind_speeds">)"
               R"(<img id="blooimage" data-url="//c.test/wind_rose">)"
               R"(<img id="blooimage" data-url="//c.test/cloud_coverage">)";
    }
    if (contains(url, "wind_speeds")) {
        return chart({"< 2 km/h", "2-5", "5-10", "10-20", "20-30", "> 50"}, 12);
    }
    if (contains(url, "wind_rose")) return chart({"<2", "2-5", "10-20", "30-40"}, 16);
    if (contains(url, "cloud_coverage")) {
        return chart({"Sunny", "Partly cloudy", "Overcast", "Precipitation days"}, 12);
    }
    return R"({"address":{"town":"Ovunque & altrove"}})";
}

std::string UnreliableSession::chart(const std::vector<std::string>& series, int values) {
    static const std::array<std::string, 6> kOddValues{"1e300",    "-40",       "null",
                                                       R"("inf")", R"("12.5")", "9e18"};
    std::vector<std::string> documents;
    documents.reserve(series.size());
    for (const std::string& name : series) {
        std::vector<std::string> numbers(static_cast<std::size_t>(values));
        for (std::string& number : numbers) {
            number = below(40) == 0 ? kOddValues[static_cast<std::size_t>(below(kOddValues.size()))]
                                    : std::to_string(below(12));
        }
        documents.push_back(
            fmt::format(R"({{"name":"{}","data":[{}]}})", name, fmt::join(numbers, ",")));
    }
    return fmt::format(R"({{"series":[{}]}})", fmt::join(documents, ","));
}

}  // namespace kalvo::monkey
