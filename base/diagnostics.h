#pragma once

#include <string_view>

namespace kalvo::base {

/// Where one-line messages for whoever runs the program from a terminal go.
class Diagnostics {
 public:
    virtual ~Diagnostics() = default;
    /// Writes the text as one line: control characters in it (a line break in a web answer, an
    /// escape sequence) become blanks.
    virtual void print(std::string_view line) = 0;

    /// The process's standard output.
    [[nodiscard]] static Diagnostics& standardOutput();
};

}  // namespace kalvo::base
