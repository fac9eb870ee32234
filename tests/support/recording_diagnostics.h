#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/diagnostics.h"

namespace kalvo::tests {

/// Diagnostics that keep their lines, in order, for a test to compare.
class RecordingDiagnostics final : public base::Diagnostics {
 public:
    std::vector<std::string> lines;

    void print(std::string_view line) override { lines.emplace_back(line); }
};

}  // namespace kalvo::tests
