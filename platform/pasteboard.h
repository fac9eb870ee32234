#pragma once

#include <string_view>

namespace kalvo::platform {

/// The system clipboard.
class Pasteboard {
 public:
    virtual ~Pasteboard() = default;
    /// Replaces whatever the clipboard holds by a plain UTF-8 text.
    virtual void setString(std::string_view text) = 0;
};

}  // namespace kalvo::platform
