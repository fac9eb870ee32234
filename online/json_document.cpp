#include "online/json_document.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace kalvo::online {

namespace {

using simdjson::dom::element;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// From this many digits on an integer may be beyond 64 bits.
constexpr std::size_t kLongInteger = 19;

bool isNumberCharacter(char character) {
    return (character >= '0' && character <= '9') || character == '-' || character == '+' ||
           character == '.' || character == 'e' || character == 'E';
}

/// The end of the string literal that begins at `start`.
std::size_t endOfString(std::string_view json, std::size_t start) {
    std::size_t end = start + 1;
    while (end < json.size() && json[end] != '"') end += json[end] == '\\' ? 2 : 1;
    return std::min(end + 1, json.size());
}

/// The same document with a fraction part on every long integer. The parser refuses a document
/// that holds an integer beyond 64 bits, but reads any length of digits as a double.
std::string withLongIntegersAsDoubles(std::string_view json) {
    std::string rewritten;
    rewritten.reserve(json.size() + 64);
    for (std::size_t start = 0; start < json.size();) {
        std::size_t end = start + 1;
        if (json[start] == '"') {
            end = endOfString(json, start);
        } else if (isNumberCharacter(json[start])) {
            while (end < json.size() && isNumberCharacter(json[end])) ++end;
        }
        const std::string_view token = json.substr(start, end - start);
        rewritten += token;
        const std::string_view digits = token.substr(token.front() == '-' ? 1 : 0);
        if (digits.size() >= kLongInteger &&
            digits.find_first_not_of("0123456789") == std::string_view::npos) {
            rewritten += ".0";
        }
        start = end;
    }
    return rewritten;
}

}  // namespace

base::Result<JsonDocument> JsonDocument::parse(std::string_view body) {
    if (body.starts_with(kByteOrderMark)) body.remove_prefix(kByteOrderMark.size());
    auto parser = std::make_unique<simdjson::dom::parser>();
    element top;
    simdjson::error_code error = parser->parse(body.data(), body.size()).get(top);
    if (error == simdjson::NUMBER_ERROR) {
        error = parser->parse(withLongIntegersAsDoubles(body)).get(top);
    }
    if (!error && !top.is_object() && !top.is_array()) error = simdjson::INCORRECT_TYPE;
    if (error) {
        return base::Failure(
            {"JSON", error,
             std::string("The answer cannot be read as JSON: ") + simdjson::error_message(error)});
    }
    if (top.is_array()) return base::Failure({"InvalidJSON", 500, ""});
    return JsonDocument(std::move(parser), top.get_object().value_unsafe());
}

std::optional<std::string_view> textMember(simdjson::dom::object object, std::string_view key) {
    std::string_view text;
    if (object[key].get(text)) return std::nullopt;
    return text;
}

std::optional<double> numberMember(simdjson::dom::object object, std::string_view key) {
    double number = 0;
    if (object[key].get(number)) return std::nullopt;
    return number;
}

std::optional<std::vector<simdjson::dom::object>> objectsMember(simdjson::dom::object object,
                                                                std::string_view key) {
    simdjson::dom::array array;
    if (object[key].get(array)) return std::nullopt;
    std::vector<simdjson::dom::object> objects;
    objects.reserve(array.size());
    for (const element item : array) {
        simdjson::dom::object itemObject;
        if (item.get(itemObject)) return std::nullopt;
        objects.push_back(itemObject);
    }
    return objects;
}

}  // namespace kalvo::online
