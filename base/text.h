#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Unicode text in UTF-8: what the system needs of its platform's text functions.
namespace kalvo::base {

/// Returns the text with the lower or upper case of every character, without regard to the locale.
[[nodiscard]] std::string lowercased(std::string_view text);
[[nodiscard]] std::string uppercased(std::string_view text);

/// Returns the text without the white space (Unicode space characters and tabs) at its ends.
[[nodiscard]] std::string_view trimmedSpaces(std::string_view text);

/// Returns the text without the white space and newline characters (U+000A to U+000D, U+0085,
/// U+2028, U+2029) at its ends.
[[nodiscard]] std::string_view trimmedSpacesAndNewlines(std::string_view text);

/// Returns the text without the characters at its ends that are neither letters (marks included)
/// nor numbers.
[[nodiscard]] std::string_view trimmedToAlphanumerics(std::string_view text);

/// Returns the number of Unicode code points.
[[nodiscard]] std::size_t codePointCount(std::string_view text);

/// Returns whether the bytes are well-formed UTF-8.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

}  // namespace kalvo::base
