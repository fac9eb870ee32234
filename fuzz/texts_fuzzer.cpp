#include <cmath>
#include <string>

#include "fuzz/fuzzing.h"
#include "platform/color.h"
#include "platform/numbers.h"
#include "platform/text.h"

using kalvo::fuzz::require;
namespace platform = kalvo::platform;

namespace {

void checkNumber(std::string_view text) {
    const auto value = platform::parseDouble(text);
    if (!value || std::isnan(*value)) return;
    const auto again = platform::parseDouble(platform::shortestDecimal(*value));
    require(again == *value, "the shortest decimal reads back as the same double");
}

void checkColor(std::string_view text) {
    const auto color = platform::Color::hex(text);
    for (const double component : {color.red, color.green, color.blue, color.opacity}) {
        require(component >= 0 && component <= 1, "components are from 0 to 1");
    }
}

void checkTrimming(std::string_view text) {
    for (const std::string_view trimmed :
         {platform::trimmedSpaces(text), platform::trimmedSpacesAndNewlines(text),
          platform::trimmedToAlphanumerics(text)}) {
        require(trimmed.empty() || text.find(trimmed) != std::string_view::npos,
                "a trimmed text is part of the text");
    }
    require(platform::characterCount(text) <= text.size(), "a character has at least one byte");
    if (platform::isValidUtf8(text)) {
        require(platform::isValidUtf8(platform::lowercased(text)), "case mapping keeps UTF-8");
        require(platform::isValidUtf8(platform::uppercased(text)), "case mapping keeps UTF-8");
    }
}

}  // namespace

/// The input is a short text of any kind: a number, a colour, a name.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = kalvo::fuzz::asText(data, size);
    checkNumber(text);
    checkColor(text);
    checkTrimming(text);
    return 0;
}
