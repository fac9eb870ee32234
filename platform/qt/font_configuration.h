#pragma once

#include <thread>

namespace kalvo::platform {

/// Reads the system's font configuration on a thread of its own; it ends with the thread and stays
/// read for the rest of the run. To be waited for before the first font is used. Does nothing where
/// fonts need no such reading.
[[nodiscard]] std::jthread readFontConfiguration();

}  // namespace kalvo::platform
