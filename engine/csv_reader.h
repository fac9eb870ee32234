#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// Tables in text files: a line per row, fields between semicolons, no quoting of any kind.
namespace kalvo::engine {

/// Takes the first line off the text, with the newline character that ends it (one of U+000A to
/// U+000D, U+0085, U+2028 and U+2029, each on its own, so that "\r\n" ends two lines), and fills
/// `fields` with views of its first fields, `limit` at most. White space at the line's ends is no
/// part of it; a line of nothing else has no fields.
void readRow(std::string_view& text, std::size_t limit, std::vector<std::string_view>& fields);

}  // namespace kalvo::engine
