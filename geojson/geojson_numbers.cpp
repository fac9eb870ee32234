#include "geojson/geojson_numbers.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "base/numbers.h"

namespace kalvo::geojson {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Takes the digits at the front of `text` away and says how many there were.
std::size_t takeDigits(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && isDigit(text[count])) ++count;
    text.remove_prefix(count);
    return count;
}

bool take(std::string_view& text, std::string_view choices) {
    if (text.empty() || choices.find(text.front()) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

enum class NumberKind { kNone, kInteger, kFraction };

NumberKind numberKind(std::string_view token) {
    take(token, "-");
    const bool leadingZero = token.starts_with('0');
    const std::size_t digits = takeDigits(token);
    if (digits == 0 || (leadingZero && digits > 1)) return NumberKind::kNone;
    if (token.empty()) return NumberKind::kInteger;
    if (take(token, ".") && takeDigits(token) == 0) return NumberKind::kNone;
    if (take(token, "eE")) {
        take(token, "+-");
        if (takeDigits(token) == 0) return NumberKind::kNone;
    }
    return token.empty() ? NumberKind::kFraction : NumberKind::kNone;
}

std::string readableNumber(std::string_view token) {
    const NumberKind kind = numberKind(token);
    const auto value = base::parseDouble(token);
    if (kind == NumberKind::kNone || !value) return std::string(token);
    if (std::isfinite(*value)) return base::shortestDecimal(*value);
    return kind == NumberKind::kInteger ? '"' + std::string(token) + '"' : "null";
}

/// The length of the string literal at the front of a JSON text; all of it when it is not closed.
std::size_t stringLength(std::string_view json) {
    for (std::size_t at = 1; at < json.size(); ++at) {
        if (json[at] == '\\') {
            ++at;
        } else if (json[at] == '"') {
            return at + 1;
        }
    }
    return json.size();
}

}  // namespace

std::string withReadableNumbers(std::string_view json) {
    std::string readable;
    readable.reserve(json.size());
    while (!json.empty()) {
        std::size_t length = 1;
        if (json.front() == '"') {
            length = stringLength(json);
            readable += json.substr(0, length);
        } else if (json.front() == '-' || isDigit(json.front())) {
            length = std::min(json.find_first_not_of("+-.0123456789Ee"), json.size());
            readable += readableNumber(json.substr(0, length));
        } else {
            readable += json.front();
        }
        json.remove_prefix(length);
    }
    return readable;
}

}  // namespace kalvo::geojson
