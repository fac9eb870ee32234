#pragma once

#include <future>

namespace kalvo::ui {

/// Starts Fontconfig (`FcInit`) on a thread of its own, where one is available: reading the
/// system's font configuration takes milliseconds that the connection to the desktop leaves free.
/// The result is to be destroyed, which waits for the thread, before the first font is used. Does
/// nothing on macOS.
[[nodiscard]] std::future<void> preloadFontconfig();

}  // namespace kalvo::ui
