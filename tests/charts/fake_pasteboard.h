#pragma once

#include <string>

#include "platform/pasteboard.h"

namespace kalvo::charts {

/// A clipboard that only this test sees.
class FakePasteboard final : public platform::Pasteboard {
 public:
    std::string text;
    void setString(std::string_view newText) override { text = newText; }
};

}  // namespace kalvo::charts
