#include "base/json.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "base/numbers.h"

namespace kalvo::base {

namespace {

using simdjson::error_code;
using simdjson::dom::element;
using simdjson::dom::parser;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// Takes the digits at the front of `text` away and returns how many there were.
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
    const auto value = parseDouble(token);
    if (kind == NumberKind::kNone || !value) return std::string(token);
    if (std::isfinite(*value)) return shortestDecimal(*value);
    return kind == NumberKind::kInteger ? '"' + std::string(token) + '"' : "null";
}

/// Returns the length of the string literal at the front of a JSON text; all of it when it is not
/// closed.
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

/// Returns the text with all its numbers written as doubles that simdjson reads as such. What is no
/// JSON number stays as it is.
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

/// Returns whether the text may hold the integer -0, which simdjson reads as 0. Without branches,
/// so that the compiler takes 16 bytes at a time.
bool mayHoldNegativeZero(std::string_view json) {
    unsigned char found = 0;
    for (std::size_t at = 0; at + 2 < json.size(); ++at) {
        found = static_cast<unsigned char>(
            found | static_cast<unsigned char>((json[at] == '-') & (json[at + 1] == '0') &
                                               (json[at + 2] != '.')));
    }
    return found != 0;
}

error_code parseWith(parser& reader,
                     std::string_view text,
                     JsonDocument::Nesting nesting,
                     element& root) {
    const auto error = reader.parse(text.data(), text.size()).get(root);
    // The parser starts with room for a nesting of 1,024.
    if (error != simdjson::DEPTH_ERROR || nesting == JsonDocument::Nesting::kLimited) return error;
    const std::size_t deepest = text.size() / 2 + 2;
    if (const auto noMemory = reader.allocate(text.size(), deepest)) return noMemory;
    return reader.parse(text.data(), text.size()).get(root);
}

}  // namespace

Result<JsonDocument> JsonDocument::parse(std::string_view text, Nesting nesting) {
    auto reader = std::make_unique<parser>();
    element root;
    error_code error = simdjson::NUMBER_ERROR;
    if (!mayHoldNegativeZero(text)) error = parseWith(*reader, text, nesting, root);
    if (error == simdjson::NUMBER_ERROR) {
        error = parseWith(*reader, withReadableNumbers(text), nesting, root);
    }
    if (error) return Failure({"JSON", error, simdjson::error_message(error)});
    return JsonDocument(std::move(reader), root);
}

}  // namespace kalvo::base
