#pragma once

#include "platform/pasteboard.h"

namespace kalvo::platform {

/// The clipboard of the desktop.
class QtPasteboard final : public Pasteboard {
 public:
    void setString(std::string_view text) override;
};

}  // namespace kalvo::platform
