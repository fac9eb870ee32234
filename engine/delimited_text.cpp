#include "engine/delimited_text.h"

#include <algorithm>
#include <utility>

namespace kalvo::engine {

namespace {

/// The bytes of the newline character at a position, 0 when there is none.
std::size_t newlineLength(std::string_view text, std::size_t position) {
    const auto byte = static_cast<unsigned char>(text[position]);
    if (byte >= '\n' && byte <= '\r') return 1;
    if (byte == 0xC2) return text.substr(position).starts_with("\u0085") ? 2 : 0;
    if (byte == 0xE2) {
        const std::string_view rest = text.substr(position);
        return rest.starts_with("\u2028") || rest.starts_with("\u2029") ? 3 : 0;
    }
    return 0;
}

}  // namespace

std::string_view takeLine(std::string_view& text) {
    for (std::size_t end = 0; end < text.size(); ++end) {
        if (const std::size_t length = newlineLength(text, end)) {
            const std::string_view line = text.substr(0, end);
            text.remove_prefix(end + length);
            return line;
        }
    }
    return std::exchange(text, {});
}

void splitFields(std::string_view line, std::size_t limit, std::vector<std::string_view>& fields) {
    fields.clear();
    std::size_t start = 0;
    while (fields.size() < limit && start <= line.size()) {
        const std::size_t end = std::min(line.find(';', start), line.size());
        fields.push_back(line.substr(start, end - start));
        start = end + 1;
    }
}

}  // namespace kalvo::engine
