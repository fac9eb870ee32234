#include "tools/support/tool_application.h"

#include <fstream>

#include <unistd.h>

#include "widgets/theme.h"

namespace kalvo::tools {

namespace {

/// The bundle, once the look that it brings has been applied.
platform::Bundle dressed(platform::Bundle bundle) {
    widgets::Theme::apply(bundle);
    return bundle;
}

}  // namespace

platform::Task<platform::Result<std::string>> NoNetwork::get(platform::HttpRequest) {
    co_return platform::Failure({"Transport", 1, "there is no network"});
}

ToolApplication::ToolApplication(platform::HttpSession& session)
    : bundle_(dressed(platform::Bundle(KALVO_SOURCE_DIR "/resources"))),
      parser_(bundle_, diagnostics_),
      scraper_(session, online::ServiceOrigins::publicServices(), diagnostics_),
      application_({.parser = parser_,
                    .scraper = scraper_,
                    .pasteboard = pasteboard_,
                    .diagnostics = diagnostics_,
                    .bundle = bundle_},
                   platform::NotificationCenter::defaultCenter(),
                   workspace_) {}

app::MainScreen& ToolApplication::openScreen() {
    return *qobject_cast<app::MainScreen*>(application_.openWindow()->centralWidget());
}

long residentKilobytes() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    long resident = 0;
    statm >> pages >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

}  // namespace kalvo::tools
