#include "base/numbers.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cstdlib>
#include <system_error>

#include <fmt/format.h>

namespace kalvo::base {

namespace {

/// Returns the locale of numbers in files. The process's own locale is the user's: there "1.5" may
/// read as 1.
locale_t numberLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

bool isBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

}  // namespace

std::optional<double> parseDouble(std::string_view text) {
    if (text.empty() || isBlank(text.front())) return std::nullopt;
    double value = 0;
    const char* const end = text.data() + text.size();
    if (const auto read = std::from_chars(text.data(), end, value);
        read.ec == std::errc() && read.ptr == end) {
        return value;
    }
    // What `from_chars` leaves: a plus sign, hexadecimal digits, numbers beyond the doubles.
    const std::string terminated(text);
    char* rest = nullptr;
    value = strtod_l(terminated.c_str(), &rest, numberLocale());
    if (rest != terminated.c_str() + terminated.size()) return std::nullopt;
    return value;
}

std::string shortestDecimal(double value) {
    std::string text = fmt::format("{}", value);
    if (text.find_first_not_of("-0123456789") == std::string::npos) text += ".0";
    return text;
}

std::string italianDecimal(double value, int decimals) {
    std::string text = fmt::format("{:.{}f}", value, decimals);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

}  // namespace kalvo::base
