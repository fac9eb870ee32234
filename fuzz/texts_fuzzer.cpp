#include <cmath>
#include <string>

#include "base/numbers.h"
#include "base/text.h"
#include "fuzz/fuzzing.h"
#include "graphics/color.h"

using kalvo::fuzz::require;
namespace base = kalvo::base;

namespace {

void checkNumber(std::string_view text) {
    const auto value = base::parseDouble(text);
    if (!value || std::isnan(*value)) return;
    const auto again = base::parseDouble(base::shortestDecimal(*value));
    require(again == *value, "the shortest decimal reads back as the same double");
}

void checkColor(std::string_view text) {
    const auto color = kalvo::graphics::Color::hex(text);
    for (const double component : {color.red, color.green, color.blue, color.opacity}) {
        require(component >= 0 && component <= 1, "components are from 0 to 1");
    }
}

void checkTrimming(std::string_view text) {
    for (const std::string_view trimmed :
         {base::trimmedSpaces(text), base::trimmedSpacesAndNewlines(text),
          base::trimmedToAlphanumerics(text)}) {
        require(trimmed.empty() || text.find(trimmed) != std::string_view::npos,
                "a trimmed text is part of the text");
    }
    require(base::codePointCount(text) <= text.size(), "a character has at least one byte");
    if (base::isValidUtf8(text)) {
        require(base::isValidUtf8(base::lowercased(text)), "case mapping keeps UTF-8");
        require(base::isValidUtf8(base::uppercased(text)), "case mapping keeps UTF-8");
    }
}

}  // namespace

/// The input is a short text of any kind: a number, a color, a name.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = kalvo::fuzz::asText(data, size);
    checkNumber(text);
    checkColor(text);
    checkTrimming(text);
    return 0;
}
