#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include <simdjson.h>

#include "base/result.h"

namespace kalvo::base {

/// A parsed JSON text (RFC 8259). The elements and texts that it hands out live as long as it does.
///
/// Every number reads as the double next to it (`element::get(double&)`), -0 as -0.0. Of those
/// beyond the doubles, which simdjson refuses together with their document, an integer reads as a
/// string of its digits and any other as null.
class JsonDocument {
 public:
    /// Says how deep arrays and objects may be nested: up to 1,024 levels, or as deep as memory
    /// allows, which takes 16 bytes for each byte of the text.
    enum class Nesting { kLimited, kAny };

    /// Fails with the domain "JSON" and a simdjson error code for what is no JSON.
    [[nodiscard]] static Result<JsonDocument> parse(std::string_view text, Nesting nesting);

    [[nodiscard]] simdjson::dom::element root() const { return root_; }

 private:
    JsonDocument(std::unique_ptr<simdjson::dom::parser> parser, simdjson::dom::element root)
        : parser_(std::move(parser)), root_(root) {}

    std::unique_ptr<simdjson::dom::parser> parser_;  // holds what root_ points to
    simdjson::dom::element root_;
};

}  // namespace kalvo::base
