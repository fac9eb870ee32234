// Measures what answers made to do harm cost: kalvo_hostile [words of a case's name]. For each case
// a process opens the window, searches online or taps the globe, and prints by how much its memory
// grew at the most, how long the event loop was held at the longest, the share of a core in use
// once the answer was shown, and how long it took to get there. The answers come over TLS from a
// server on the loopback address, in a process of its own.

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <thread>
#include <tuple>

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>

#include "net/qt/curl_http_session.h"
#include "tests/support/tls_server.h"
#include "tools/support/tool_application.h"

namespace {

using namespace kalvo;
using namespace std::chrono_literals;
using std::chrono::steady_clock;
using tests::TlsAnswer;
using tests::TlsServer;

constexpr auto kLongestCase = 10s;
constexpr auto kShown = 1s;  // how long an answer is watched once it is shown
constexpr std::size_t kMebibyte = 1 << 20;

/// Which request the answer is for, and its headers and body; `endless` follows again and again.
struct Case {
    std::string name;
    std::string path;
    std::string headers;
    std::string body;
    std::string endless;
};

const char* const kSearch = "/en/server/search/query3?query=Roma";
const char* const kPage = "/en/weather/forecast/modelclimate/roma";
const char* const kTap = "/reverse?lat=41.9&lon=12.5&format=json&accept-language=it&zoom=10";

std::string repeated(std::string_view text, std::size_t size) {
    std::string all;
    while (all.size() + text.size() <= size) all += text;
    return all;
}

std::string place(const std::string& name, const std::string& iso2) {
    return R"({"results":[{"name":")" + name +
           R"(","country":"Italy","lat":41.9,"lon":12.5,"url":"roma","iso2":")" + iso2 + "\"}]}";
}

std::vector<Case> cases() {
    const std::string gzip = "Content-Encoding: gzip\r\n";
    const std::string head("\x1F\x8B\x08\0\0\0\0\0\0\x03", 10);
    const std::string named("\x1F\x8B\x08\x08\0\0\0\0\0\x03", 10);
    // RFC 1951, 3.2.4 and 3.2.6: a block that is stored and empty, and four that are coded with the
    // fixed codes and empty (010 0000000 each, from the lowest bit on).
    const std::string stored("\0\0\0\xFF\xFF", 5);
    const std::string coded("\x02\x08\x20\x80\0", 5);
    const std::string tag = "id='blooimage' data-url='//a/wind_speeds'>";
    const std::string address = " id='blooimage' a data-url='//a/wind_speeds?" +
                                repeated("&amp;", 8 * kMebibyte - 1000) +
                                "' id='blooimage' data-url='//a/wind_rose'";
    return {{"an honest answer", kSearch, "", place("Roma", "IT"), ""},
            {"gzip, empty stored blocks", kSearch, gzip, head, repeated(stored, kMebibyte)},
            {"gzip, empty coded blocks", kSearch, gzip, head, repeated(coded, kMebibyte)},
            {"gzip, endless file name", kSearch, gzip, named, repeated("a", kMebibyte)},
            {"endless body", kSearch, "", "", repeated(" ", kMebibyte)},
            {"place name of 100 kB", kSearch, "", place(repeated("W", 100'000), "IT"), ""},
            {"place name of 1 MB", kSearch, "", place(repeated("W", 1'000'000), "IT"), ""},
            {"place name of 8 MB", kSearch, "", place(repeated("W", 8'000'000), "IT"), ""},
            {"country code of 1 MB", kSearch, "", place("Roma", repeated("W", 1'000'000)), ""},
            {"country code of 8 MB", kSearch, "", place("Roma", repeated("W", 8'000'000)), ""},
            {"name of a point of 6 MB", kTap, "",
             R"({"address":{"city":")" + repeated("W", 6'000'000) + "\"}}", ""},
            {"page of matches, 8 MiB", kPage, "", repeated(tag, 8 * kMebibyte - 100), ""},
            {"page of entities, 8 MiB", kPage, "", address, ""}};
}

[[noreturn]] void serve(const Case& hostile, int portPipe) {
    int argc = 0;
    QCoreApplication application(argc, nullptr);
    TlsServer server;
    server.answer(kSearch, TlsAnswer::ok(place("Roma", "IT")));
    const bool ends = hostile.endless.empty();
    server.answer(hostile.path,
                  {.bytes = "HTTP/1.1 200 OK\r\n" + hostile.headers +
                            (ends ? "Content-Length: " + std::to_string(hostile.body.size())
                                  : std::string("Connection: close")) +
                            "\r\n\r\n" + hostile.body,
                   .repeated = hostile.endless});
    const std::string origin = server.origin() + "\n";
    if (write(portPipe, origin.data(), origin.size()) < 0) std::abort();
    std::exit(QCoreApplication::exec());
}

/// The most memory that this process has had resident since it was last asked, in MB.
double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    double kilobytes = 0;
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) kilobytes = std::atof(line.c_str() + 6);
    }
    std::ofstream("/proc/self/clear_refs") << "5";
    return kilobytes / 1000;
}

/// Runs the event loop until `isOver` holds or the time is up; returns the longest that one round
/// of it took.
steady_clock::duration watch(steady_clock::time_point until, const std::function<bool()>& isOver) {
    steady_clock::duration longest{};
    while (!isOver()) {
        const auto start = steady_clock::now();
        if (start > until) break;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        longest = std::max(longest, steady_clock::now() - start);
        std::this_thread::sleep_for(200us);
    }
    return longest;
}

double milliseconds(steady_clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

[[noreturn]] void measure(const Case& hostile, const std::string& origin) {
    int argc = 0;
    QApplication application(argc, nullptr);
    net::CurlHttpSession session(TlsServer::defaultIdentity());
    tools::ToolApplication kalvo(session, {origin, origin});
    app::MainScreen& screen = kalvo.openScreen();
    watch(steady_clock::now() + kShown, [] { return false; });

    peakMegabytes();
    const double before = peakMegabytes();
    const auto start = steady_clock::now();
    if (hostile.path == kTap) {
        screen.state().onGlobeTapped({41.9, 12.5});
        screen.state().isFetchingOnline = true;
    } else {
        screen.state().searchText = "Roma";
        screen.state().performOnlineSearch();
    }
    auto longest = watch(start + kLongestCase, [&] { return !screen.state().isFetchingOnline; });
    const auto answered = steady_clock::now();
    const std::clock_t processor = std::clock();
    longest = std::max(longest, watch(answered + kShown, [] { return false; }));
    const double share = double(std::clock() - processor) / CLOCKS_PER_SEC /
                         std::chrono::duration<double>(steady_clock::now() - answered).count();
    std::printf("| %s | %.0f MB | %.0f ms | %.0f %% | %.1f s |\n", hostile.name.c_str(),
                peakMegabytes() - before, milliseconds(longest), 100 * share,
                milliseconds(answered - start) / 1000);
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}

/// Runs one case, in two processes of its own.
void run(const Case& hostile) {
    int ends[2];
    if (pipe(ends) != 0) std::abort();
    const pid_t server = fork();
    if (server == 0) serve(hostile, ends[1]);
    std::string origin;
    for (char byte = 0; read(ends[0], &byte, 1) == 1 && byte != '\n';) origin += byte;
    const pid_t client = fork();
    if (client == 0) measure(hostile, origin);
    waitpid(client, nullptr, 0);
    kill(server, SIGKILL);
    waitpid(server, nullptr, 0);
    close(ends[0]);
    close(ends[1]);
}

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    std::ignore = TlsServer::defaultIdentity();  // made here, it is the same in all processes
    std::puts("| answer | memory | longest hold | core while shown | over after |");
    std::puts("|---|---|---|---|---|");
    std::fflush(stdout);
    for (const Case& hostile : cases()) {
        if (argc < 2 || hostile.name.find(argv[1]) != std::string::npos) run(hostile);
    }
}
