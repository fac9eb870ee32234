#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kalvo::base {

/// Returns the number that the whole text is, as the C library reads one in the "C" locale ("+5",
/// "1e3", ".5", "inf" and hexadecimal included); nothing when it is empty, begins with a blank or
/// has anything after the number.
[[nodiscard]] std::optional<double> parseDouble(std::string_view text);

/// Returns the shortest decimal text that reads back as the same double, always with a fraction
/// part or an exponent: 45.0, 0.5, 1e-05, 1e+21.
[[nodiscard]] std::string shortestDecimal(double value);

/// Returns the value with this many decimals behind an Italian decimal comma: 14,6.
[[nodiscard]] std::string italianDecimal(double value, int decimals);

}  // namespace kalvo::base
