#include "online/place_name_decoder.h"

#include <array>

#include "online/json_document.h"

namespace kalvo::online {

std::optional<std::string> decodePlaceName(std::string_view body) {
    static constexpr std::array<std::string_view, 5> kByPreference{"city", "town", "village",
                                                                   "hamlet", "state"};
    const auto answer = JsonDocument::parse(body);
    if (!answer) return std::nullopt;
    simdjson::dom::object address;
    if (answer->root()["address"].get(address)) return std::nullopt;
    for (const std::string_view key : kByPreference) {
        if (const auto name = textMember(address, key)) return std::string(*name);
    }
    return std::nullopt;
}

}  // namespace kalvo::online
