#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Web addresses as texts.
namespace kalvo::net {

/// The most bytes of an address: servers need not take more than 8,000 (RFC 9110, section 4.1).
inline constexpr std::size_t kLongestUrl = 8192;

/// Returns whether a UTF-8 text is an address that a request can be sent to: it names a host, holds
/// no character that has to be escaped first and has no more than `kLongestUrl` bytes. Letters
/// beyond ASCII are taken.
[[nodiscard]] bool isValidUrl(std::string_view text);

/// Returns the text as (a part of) the query of an address: what RFC 3986 does not allow there
/// stands as the percent-encoded bytes of its UTF-8 form, with upper-case digits. Nothing when the
/// text is not UTF-8.
[[nodiscard]] std::optional<std::string> percentEncodedQuery(std::string_view text);

}  // namespace kalvo::net
