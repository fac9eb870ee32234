#include "base/shown_text.h"

namespace kalvo::base {

namespace {

/// The longest run of code points without a blank that stays in one piece.
constexpr std::size_t kLongestWord = 24;

/// Takes the first code point off a text that is not empty and returns its bytes; of a text that
/// is no UTF-8, some bytes.
std::string_view takeCodePoint(std::string_view& text) {
    constexpr std::size_t kLongest = 4;
    std::size_t length = 1;
    while (length < text.size() && length < kLongest &&
           (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) {
        ++length;
    }
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(length);
    return taken;
}

bool isControl(std::string_view codePoint) {
    const auto isIn = [=](std::string_view first, std::string_view last) {
        return codePoint.size() == first.size() && codePoint >= first && codePoint <= last;
    };
    return isIn(std::string_view("\0", 1), "\x1F") || codePoint == "\x7F" ||
           isIn("\u0080", "\u009F") || codePoint == "\u061C" || isIn("\u200E", "\u200F") ||
           // NOLINTNEXTLINE(misc-misleading-bidirectional): the very characters to be found.
           isIn("\u2028", "\u202E") || isIn("\u2066", "\u2069");
}

}  // namespace

std::string shownText(std::string_view text) {
    std::string_view rest = text;
    for (std::size_t count = 0; count < kShownLength && !rest.empty(); ++count) {
        takeCodePoint(rest);
    }
    std::string shown = withoutControls(text.substr(0, text.size() - rest.size()));
    if (!rest.empty()) shown += "…";
    return shown;
}

std::string withoutControls(std::string_view text) {
    std::string clean;
    clean.reserve(text.size());
    while (!text.empty()) {
        const std::string_view codePoint = takeCodePoint(text);
        clean += isControl(codePoint) ? " " : codePoint;
    }
    return clean;
}

std::string withLineBreakOpportunities(std::string_view text) {
    std::string broken;
    std::size_t run = 0;
    while (!text.empty()) {
        const std::string_view codePoint = takeCodePoint(text);
        run = codePoint == " " || codePoint == "\n" ? 0 : run + 1;
        if (run > kLongestWord) {
            broken += "\u200B";
            run = 1;
        }
        broken += codePoint;
    }
    return broken;
}

}  // namespace kalvo::base
