#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kalvo::online {

/// Returns the most specific settlement that an answer of the reverse geocoding names, as it names
/// it; nothing when it names none.
[[nodiscard]] std::optional<std::string> decodePlaceName(std::string_view body);

}  // namespace kalvo::online
