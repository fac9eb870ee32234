#include "online/climate_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include <re2/re2.h>

#include "net/url.h"

namespace kalvo::online {

namespace {

constexpr std::string_view kWindSpeedsPattern =
    R"(id=["']blooimage["'][^>]+data-url=["']([^"']*wind_speeds[^"']*)["'])";
constexpr std::string_view kWindRosePattern =
    R"(id=["']blooimage["'][^>]+data-url=["']([^"']*wind_rose[^"']*)["'])";
constexpr std::string_view kCloudCoveragePattern =
    R"(id=["']blooimage["'][^>]+data-url=["']([^"']*cloud_coverage[^"']*)["'])";

/// Returns where the character after the one at the position begins.
std::size_t nextCharacter(std::string_view text, std::size_t position) {
    do {
        ++position;
    } while (position < text.size() && (static_cast<unsigned char>(text[position]) & 0xC0) == 0x80);
    return position;
}

/// Returns what group 1 captures in the first match of one of the patterns above. It reaches from
/// the last quotation mark but one to the last, so that only the match's end is looked for: that
/// takes one pass of an automaton over the page, a twentieth of what groups cost.
std::optional<std::string_view> firstCapture(std::string_view pattern, std::string_view page) {
    const RE2 expression("(?s).*?" + std::string(pattern));
    re2::StringPiece upToEnd;
    if (!expression.Match({page.data(), page.size()}, 0, page.size(), RE2::ANCHOR_START, &upToEnd,
                          1)) {
        return std::nullopt;
    }
    const std::string_view found(upToEnd.data(), upToEnd.size() - 1);
    return found.substr(found.find_last_of("\"'") + 1);
}

std::string withAmpersands(std::string_view text) {
    constexpr std::string_view kEntity = "&amp;";
    std::string decoded;
    decoded.reserve(text.size());
    while (true) {
        const std::size_t entity = text.find(kEntity);
        decoded += text.substr(0, entity);
        if (entity == std::string_view::npos) return decoded;
        decoded += '&';
        text.remove_prefix(entity + kEntity.size());
    }
}

std::optional<std::string> firstAddress(std::string_view pattern, std::string_view page) {
    const auto captured = firstCapture(pattern, page);
    if (!captured) return std::nullopt;
    // Decoded, a longer text would still be no address, and take time.
    constexpr std::size_t kLongest = 5 * net::kLongestUrl;
    return "https:" + withAmpersands(captured->substr(0, kLongest + 1));
}

}  // namespace

std::optional<ChartAddresses> findChartAddresses(std::string_view page) {
    auto windSpeeds = firstAddress(kWindSpeedsPattern, page);
    auto windRose = firstAddress(kWindRosePattern, page);
    if (!windSpeeds || !windRose) return std::nullopt;
    return ChartAddresses{*std::move(windSpeeds), *std::move(windRose),
                          firstAddress(kCloudCoveragePattern, page)};
}

std::vector<std::string> matches(std::string_view pattern, std::string_view text) {
    std::vector<std::string> captured;
    const RE2 expression(re2::StringPiece(pattern.data(), pattern.size()), RE2::Quiet);
    if (!expression.ok()) return captured;

    const re2::StringPiece page(text.data(), text.size());
    std::size_t position = 0;
    std::array<re2::StringPiece, 2> groups;
    const int groupCount = std::min(expression.NumberOfCapturingGroups() + 1, 2);
    while (position <= text.size() && expression.Match(page, position, page.size(), RE2::UNANCHORED,
                                                       groups.data(), groupCount)) {
        if (groupCount == 2 && groups[1].data() != nullptr) captured.emplace_back(groups[1]);
        position = static_cast<std::size_t>(groups[0].end() - page.begin());
        if (groups[0].empty()) position = nextCharacter(text, position);
    }
    return captured;
}

}  // namespace kalvo::online
