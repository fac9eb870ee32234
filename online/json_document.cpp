#include "online/json_document.h"

#include <string>
#include <utility>

namespace kalvo::online {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

base::Result<JsonDocument> JsonDocument::parse(std::string_view body) {
    if (body.starts_with(kByteOrderMark)) body.remove_prefix(kByteOrderMark.size());
    auto document = base::JsonDocument::parse(body, base::JsonDocument::Nesting::kLimited);
    const auto unreadable = [](int code, const std::string& why) {
        return base::Failure({"JSON", code, "The answer cannot be read as JSON: " + why});
    };
    if (!document) return unreadable(document.error().code, document.error().message);
    simdjson::dom::object root;
    if (!document->root().get(root)) return JsonDocument(std::move(*document), root);
    if (document->root().is_array()) return base::Failure({"InvalidJSON", 500, ""});
    return unreadable(simdjson::INCORRECT_TYPE, "it is no object");
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
    for (const simdjson::dom::element item : array) {
        simdjson::dom::object itemObject;
        if (item.get(itemObject)) return std::nullopt;
        objects.push_back(itemObject);
    }
    return objects;
}

}  // namespace kalvo::online
