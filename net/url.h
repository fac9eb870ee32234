#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Web addresses as texts.
namespace kalvo::net {

/// Whether a UTF-8 text is an address that a request can be sent to: it names a host and holds no
/// character that has to be escaped first. Letters beyond ASCII are taken.
[[nodiscard]] bool isValidUrl(std::string_view text);

/// The text as (a part of) the query of an address: what RFC 3986 does not allow there stands as
/// the percent-encoded bytes of its UTF-8 form, with upper-case digits. Nothing when the text is
/// not UTF-8.
[[nodiscard]] std::optional<std::string> percentEncodedQuery(std::string_view text);

}  // namespace kalvo::net
