#pragma once

#include "app/kalvo_tresk_app.h"
#include "online/meteoblue_scraper.h"
#include "platform/http_session.h"
#include "platform/qt/qt_pasteboard.h"

namespace kalvo::tools {

/// A network that is not there, so that what a tool shows is the same everywhere.
class NoNetwork final : public platform::HttpSession {
 public:
    [[nodiscard]] platform::Task<platform::Result<std::string>> get(
        platform::HttpRequest request) override;
};

/// The application as a tool works it: with the look and the data it ships with, a network of the
/// tool's choosing, no browser and no diagnostics. Made after the QApplication.
class ToolApplication {
 public:
    /// The session outlives the application.
    explicit ToolApplication(platform::HttpSession& session);

    [[nodiscard]] app::Kalvo_TreskApp& application() { return application_; }
    [[nodiscard]] engine::LocationParser& parser() { return parser_; }
    /// Opens a window and returns its content.
    app::MainScreen& openScreen();

 private:
    class NoWorkspace final : public platform::Workspace {
     public:
        bool open(std::string_view) override { return true; }
    };
    class NoDiagnostics final : public platform::Diagnostics {
     public:
        void print(std::string_view) override {}
    };

    platform::Bundle bundle_;
    NoDiagnostics diagnostics_;
    NoWorkspace workspace_;
    platform::QtPasteboard pasteboard_;
    engine::LocationParser parser_;
    online::MeteoblueScraper scraper_;
    app::Kalvo_TreskApp application_;
};

/// Resident memory of this process, in kB.
[[nodiscard]] long residentKilobytes();

}  // namespace kalvo::tools
