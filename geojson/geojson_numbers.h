#pragma once

#include <string>
#include <string_view>

namespace kalvo::geojson {

/// The JSON text with its extreme numbers written in a way that simdjson can read, which refuses
/// a text for an integer beyond 64 bits or a number beyond the doubles. A number that fits a
/// double is written as one. Of those that do not, an integer becomes a string of its digits and
/// any other null. What is no JSON number stays as it is.
[[nodiscard]] std::string withReadableNumbers(std::string_view json);

}  // namespace kalvo::geojson
