#pragma once

#include <filesystem>
#include <utility>

#include "app/content_view.h"
#include "tests/support/recording_clipboard.h"
#include "tests/support/recording_diagnostics.h"

namespace kalvo::app {

/// What a state needs: resources from a folder, and two web services behind a session.
template <class Session>
struct TestServices {
    explicit TestServices(const std::filesystem::path& resources,
                          online::ServiceOrigins serviceOrigins = {"https://site.test",
                                                                   "https://names.test"})
        : bundle(resources), origins(std::move(serviceOrigins)) {}

    tests::RecordingDiagnostics diagnostics;
    Session session;
    tests::RecordingClipboard clipboard;
    base::Bundle bundle;
    online::ServiceOrigins origins;
    engine::LocationParser parser{bundle, diagnostics};
    online::MeteoblueScraper scraper{session, origins, diagnostics};
    Services services{parser, scraper, clipboard, diagnostics, bundle};
};

}  // namespace kalvo::app
