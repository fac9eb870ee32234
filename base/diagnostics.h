#pragma once

#include <string_view>

namespace kalvo::base {

/// Takes one-line messages for whoever runs the program from a terminal.
class Diagnostics {
 public:
    virtual ~Diagnostics() = default;
    /// Writes a UTF-8 text as one line: whatever could break the line, steer the terminal or turn
    /// the text round (see `withoutControls`) becomes a blank.
    virtual void print(std::string_view line) = 0;

    /// Returns the one that writes to the process's standard output.
    [[nodiscard]] static Diagnostics& standardOutput();
};

}  // namespace kalvo::base
