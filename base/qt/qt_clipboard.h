#pragma once

#include "base/clipboard.h"

namespace kalvo::base {

/// The clipboard of the desktop.
class QtClipboard final : public Clipboard {
 public:
    void setString(std::string_view text) override;
};

}  // namespace kalvo::base
