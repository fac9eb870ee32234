#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// Tables in text files: a line per row, fields between semicolons, no quoting of any kind.
/// Everything is a view into the text.
namespace kalvo::engine {

/// Takes the first line off the text, and the newline character that ends it: one of U+000A to
/// U+000D, U+0085, U+2028 and U+2029, each on its own, so that "\r\n" ends two lines.
[[nodiscard]] std::string_view takeLine(std::string_view& text);

/// Fills `fields` with the first fields of the line, `limit` at most.
void splitFields(std::string_view line, std::size_t limit, std::vector<std::string_view>& fields);

}  // namespace kalvo::engine
