#pragma once

#include <chrono>

#include "app/content_view.h"
#include "report/report.h"

namespace kalvo::app {

/// Whether a result is shown that a report can tell of.
[[nodiscard]] bool showsResult(const ContentView& state);

/// Returns what a report taken at `now` tells of the last result, which there must be. Reads the
/// stations and, for an online place, the world's outlines through the services.
[[nodiscard]] report::Report makeReport(const ContentView& state,
                                        const Services& services,
                                        std::chrono::system_clock::time_point now);

}  // namespace kalvo::app
