#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "base/result.h"

/// Tables in text files: a line per row, fields between semicolons, no quoting of any kind.
namespace kalvo::engine {

/// The fields of a row, views of its text.
using CsvRow = std::vector<std::string_view>;

/// Takes the first line off the text, with the newline character that ends it (one of U+000A to
/// U+000D, U+0085, U+2028 and U+2029, each on its own, so that "\r\n" ends two lines), and fills
/// `fields` with views of its first fields, `limit` at most. White space at the line's ends is no
/// part of it; a line of nothing else has no fields.
void readRow(std::string_view& text, std::size_t limit, CsvRow& fields);

/// Reads a table whose header must be exactly `columns`; the rows below it are views of `text`.
/// Fails on another header or a row with more or fewer fields.
[[nodiscard]] base::Result<std::vector<CsvRow>> readTable(std::string_view text,
                                                          std::string_view columns);

}  // namespace kalvo::engine
