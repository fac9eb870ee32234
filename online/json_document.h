#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <simdjson.h>

#include "base/json.h"
#include "base/result.h"

namespace kalvo::online {

/// A JSON answer whose top level is an object; see `base::JsonDocument` for its numbers. Of members
/// with one name the first counts. The views that its values hand out live as long as it does.
class JsonDocument {
 public:
    /// Fails with the domain "JSON" for what is no JSON object or array (nesting beyond 1,024
    /// levels included), and with "InvalidJSON", 500 for an array.
    [[nodiscard]] static base::Result<JsonDocument> parse(std::string_view body);

    [[nodiscard]] simdjson::dom::object root() const { return root_; }

 private:
    JsonDocument(base::JsonDocument document, simdjson::dom::object root)
        : document_(std::move(document)), root_(root) {}

    base::JsonDocument document_;  // holds what root_ points to
    simdjson::dom::object root_;
};

/// Returns the member's value when it is present and of that type.
[[nodiscard]] std::optional<std::string_view> textMember(simdjson::dom::object object,
                                                         std::string_view key);
[[nodiscard]] std::optional<double> numberMember(simdjson::dom::object object,
                                                 std::string_view key);
/// An array counts only if all of its elements are objects.
[[nodiscard]] std::optional<std::vector<simdjson::dom::object>> objectsMember(
    simdjson::dom::object object, std::string_view key);

}  // namespace kalvo::online
