#include "graphics/color.h"

#include <charconv>
#include <cstdint>

#include "base/text.h"

namespace kalvo::graphics {

namespace {

/// Hexadecimal digits up to the first other character; 0 when there is none.
std::uint64_t scanHex(std::string_view text) {
    if (text.starts_with("0x") || text.starts_with("0X")) text.remove_prefix(2);
    std::uint64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value, 16);
    return value;
}

Color fromBytes(std::uint64_t red, std::uint64_t green, std::uint64_t blue, std::uint64_t alpha) {
    const auto component = [](std::uint64_t byte) { return static_cast<double>(byte) / 255.0; };
    return {component(red), component(green), component(blue), component(alpha)};
}

}  // namespace

Color Color::hex(std::string_view text) {
    const std::string_view digits = base::trimmedToAlphanumerics(text);
    const std::uint64_t value = scanHex(digits);
    switch (base::codePointCount(digits)) {
        case 3:
            return fromBytes((value >> 8) * 17, (value >> 4 & 0xF) * 17, (value & 0xF) * 17, 255);
        case 6:
            return fromBytes(value >> 16, value >> 8 & 0xFF, value & 0xFF, 255);
        case 8:
            return fromBytes(value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF, value >> 24);
        default:
            return fromBytes(1, 1, 0, 1);
    }
}

}  // namespace kalvo::graphics
