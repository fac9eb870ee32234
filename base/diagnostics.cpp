#include "base/diagnostics.h"

#include <cstdio>
#include <string>

#include "base/shown_text.h"

namespace kalvo::base {

namespace {

class StandardOutput final : public Diagnostics {
 public:
    void print(std::string_view line) override {
        const std::string clean = withoutControls(line) + '\n';
        std::fwrite(clean.data(), 1, clean.size(), stdout);
        std::fflush(stdout);
    }
};

}  // namespace

Diagnostics& Diagnostics::standardOutput() {
    static StandardOutput output;
    return output;
}

}  // namespace kalvo::base
