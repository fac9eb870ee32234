#pragma once

#include <string_view>

namespace kalvo::base {

/// Opens addresses in other programs of the desktop.
class UrlOpener {
 public:
    virtual ~UrlOpener() = default;
    /// Opens a web address in the person's browser. Does nothing, and returns false, when it is no
    /// complete https address.
    virtual bool open(std::string_view address) = 0;
};

}  // namespace kalvo::base
