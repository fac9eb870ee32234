#pragma once

#include <string_view>

namespace kalvo::base {

/// The system clipboard.
class Clipboard {
 public:
    virtual ~Clipboard() = default;
    /// Replaces whatever the clipboard holds by a plain UTF-8 text.
    virtual void setString(std::string_view text) = 0;
};

}  // namespace kalvo::base
