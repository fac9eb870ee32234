#pragma once

#include <string>
#include <string_view>

#include "base/clipboard.h"

namespace kalvo::tests {

/// A clipboard that only its test sees.
class RecordingClipboard final : public base::Clipboard {
 public:
    std::string contents;

    void setString(std::string_view text) override { contents = text; }
};

}  // namespace kalvo::tests
