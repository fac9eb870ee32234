#pragma once

#include "app/qt/kalvo_tresk_app.h"
#include "base/qt/qt_clipboard.h"
#include "net/http_session.h"
#include "online/meteoblue_scraper.h"

namespace kalvo::tools {

/// A network that is not there, so that what a tool shows is the same everywhere.
class NoNetwork final : public net::HttpSession {
 public:
    [[nodiscard]] base::Task<base::Result<std::string>> get(net::HttpRequest request) override;
};

/// The application as a tool works it: with the look and the data it ships with, a network of the
/// tool's choosing, no browser and no diagnostics. Made after the QApplication.
class ToolApplication {
 public:
    /// The session outlives the application.
    explicit ToolApplication(
        net::HttpSession& session,
        online::ServiceOrigins origins = online::ServiceOrigins::publicServices());

    [[nodiscard]] app::Kalvo_TreskApp& application() { return application_; }
    [[nodiscard]] engine::LocationParser& parser() { return parser_; }
    /// Opens a window and returns its content.
    app::MainScreen& openScreen();

 private:
    class NoWorkspace final : public base::UrlOpener {
     public:
        bool open(std::string_view) override { return true; }
    };
    class NoDiagnostics final : public base::Diagnostics {
     public:
        void print(std::string_view) override {}
    };

    base::Bundle bundle_;
    NoDiagnostics diagnostics_;
    NoWorkspace urlOpener_;
    base::QtClipboard clipboard_;
    engine::LocationParser parser_;
    online::MeteoblueScraper scraper_;
    app::Kalvo_TreskApp application_;
};

/// Resident memory of this process, in kB.
[[nodiscard]] long residentKilobytes();

}  // namespace kalvo::tools
