#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Texts from outside, which may be of any length and hold any character, as they may be shown.
/// What is stored, compared, searched for or copied is the whole text.
namespace kalvo::base {

/// The most code points of a text that are shown; no honest place name, label or sentence has as
/// many.
inline constexpr std::size_t kShownLength = 250;

/// Returns the first `kShownLength` code points of a UTF-8 text, followed by "…" if there are more,
/// as `withoutControls` leaves them. Takes a time that does not depend on the text's length.
[[nodiscard]] std::string shownText(std::string_view text);

/// Returns a UTF-8 text with a blank in place of every character that acts instead of being seen:
/// the C0 and C1 controls (line breaks included), U+2028 and U+2029, and the directional
/// formatting characters of the Unicode Bidirectional Algorithm (UAX #9, section 2).
[[nodiscard]] std::string withoutControls(std::string_view text);

/// Returns a UTF-8 text that breaks into lines of any width: a zero-width space (U+200B) stands in
/// every run of letters that is longer than a word or a figure gets.
[[nodiscard]] std::string withLineBreakOpportunities(std::string_view text);

}  // namespace kalvo::base
