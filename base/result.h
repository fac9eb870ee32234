#pragma once

#include <string>

#include <tl/expected.hpp>

namespace kalvo::base {

/// Why an operation failed. `domain` and `code` tell programs apart what `message` tells people;
/// a message is one sentence, or empty where domain and code say it all.
struct Error {
    std::string domain;
    int code;
    std::string message;

    /// Returns one line for a diagnostic: the message, or domain and code where there is none.
    [[nodiscard]] std::string description() const {
        return message.empty() ? domain + " (" + std::to_string(code) + ")" : message;
    }

    friend bool operator==(const Error&, const Error&) = default;
};

/// A value, or the error that stands in its place.
template <class T>
using Result = tl::expected<T, Error>;

/// Wraps an error so that it can be returned where a `Result` is expected.
using Failure = tl::unexpected<Error>;

}  // namespace kalvo::base
