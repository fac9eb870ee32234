#include "tools/support/tool_application.h"

#include <fstream>

#include <unistd.h>

#include "ui/theme.h"

namespace kalvo::tools {

namespace {

/// The bundle, once the look that it brings has been applied.
base::Bundle dressed(base::Bundle bundle) {
    ui::Theme::apply(bundle);
    return bundle;
}

}  // namespace

base::Task<base::Result<std::string>> NoNetwork::get(net::HttpRequest) {
    co_return base::Failure({"Transport", 1, "there is no network"});
}

ToolApplication::ToolApplication(net::HttpSession& session, online::ServiceOrigins origins)
    : bundle_(dressed(base::Bundle(KALVO_SOURCE_DIR "/resources"))),
      parser_(bundle_, diagnostics_),
      scraper_(session, std::move(origins), diagnostics_),
      application_({.parser = parser_,
                    .scraper = scraper_,
                    .clipboard = clipboard_,
                    .diagnostics = diagnostics_,
                    .bundle = bundle_},
                   base::NotificationCenter::defaultCenter(),
                   urlOpener_) {}

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
