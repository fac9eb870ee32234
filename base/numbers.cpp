#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include <fmt/format.h>

namespace kalvo::base {

namespace {

/// The locale of numbers in files. The process's own locale is the user's: there "1.5" may read
/// as 1.
locale_t numberLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

bool isBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

/// Reads digits with at most one point among them, few enough for the digits and the power of ten
/// both to be exact as doubles: then their quotient is rounded once, as by the C library, in a
/// fraction of its time (W. D. Clinger, "How to Read Floating Point Numbers Accurately", 1990).
std::optional<double> parsePlainDecimal(std::string_view text) {
    static constexpr std::array<double, 16> kPowersOfTen{
        1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (text.size() >= kPowersOfTen.size() || text == ".") return std::nullopt;
    std::int64_t digits = 0;
    std::size_t decimals = 0;
    bool isFraction = false;
    for (const char character : text) {
        if (character >= '0' && character <= '9') {
            digits = digits * 10 + (character - '0');
            decimals += isFraction ? 1 : 0;
        } else if (character == '.' && !isFraction) {
            isFraction = true;
        } else {
            return std::nullopt;
        }
    }
    return static_cast<double>(digits) / kPowersOfTen[decimals];
}

}  // namespace

std::optional<double> parseDouble(std::string_view text) {
    if (text.empty() || isBlank(text.front())) return std::nullopt;
    if (const auto plain = parsePlainDecimal(text)) return plain;
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

std::string italianDecimal(double value, int decimals) {
    std::string text = fmt::format("{:.{}f}", value, decimals);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

}  // namespace kalvo::base
