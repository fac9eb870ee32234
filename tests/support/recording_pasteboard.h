#pragma once

#include <string>
#include <string_view>

#include "platform/pasteboard.h"

namespace kalvo::tests {

/// A clipboard that only its test sees.
class RecordingPasteboard final : public platform::Pasteboard {
 public:
    std::string contents;

    void setString(std::string_view text) override { contents = text; }
};

}  // namespace kalvo::tests
