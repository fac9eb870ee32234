#pragma once

#include <string>

#include "app/content_view.h"

namespace kalvo::monkey {

/// What is wrong with a state between two events, in one sentence; empty when it is sound.
/// `requestsUnderWay` tells whether any window waits for the network.
[[nodiscard]] std::string faultOf(const app::ContentView& state, bool requestsUnderWay);

}  // namespace kalvo::monkey
