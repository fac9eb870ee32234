#pragma once

#include <future>

namespace kalvo::ui {

/// Reads the system's font configuration on a thread of its own, if one can be had; it stays read
/// for the rest of the run. To be let go, which waits, before the first font is used. Does nothing
/// where fonts need no such reading.
[[nodiscard]] std::future<void> preloadFontconfig();

}  // namespace kalvo::ui
