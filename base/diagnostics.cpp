#include "base/diagnostics.h"

#include <cstdio>
#include <string>

namespace kalvo::base {

namespace {

class StandardOutput final : public Diagnostics {
 public:
    void print(std::string_view line) override {
        std::string clean(line);
        for (char& character : clean) {
            const auto byte = static_cast<unsigned char>(character);
            if (byte < 0x20 || byte == 0x7F) character = ' ';
        }
        clean += '\n';
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
