#include "platform/numbers.h"

#include <clocale>
#include <cstdlib>
#include <cstring>

#include <fmt/format.h>

namespace kalvo::platform {

namespace {

/// The locale of numbers in files. The process's own locale is the user's: there "1.5" may read
/// as 1.
locale_t numberLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

bool isBlank(char character) { return std::strchr(" \t\n\v\f\r", character) != nullptr; }

}  // namespace

std::optional<double> parseDouble(std::string_view text) {
    if (text.empty() || isBlank(text.front())) return std::nullopt;
    const std::string terminated(text);
    char* end = nullptr;
    const double value = strtod_l(terminated.c_str(), &end, numberLocale());
    if (end != terminated.c_str() + terminated.size()) return std::nullopt;
    return value;
}

std::string shortestDecimal(double value) {
    std::string text = fmt::format("{}", value);
    if (text.find_first_not_of("-0123456789") == std::string::npos) text += ".0";
    return text;
}

}  // namespace kalvo::platform
