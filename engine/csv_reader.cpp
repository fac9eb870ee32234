#include "engine/csv_reader.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

#include "base/text.h"

namespace kalvo::engine {

namespace {

/// Whether a byte ends a field, or may begin a newline character.
bool isMark(char byte) {
    static constexpr std::array<bool, 256> kMarks = [] {
        std::array<bool, 256> marks{};
        for (const unsigned char mark : {';', '\n', '\v', '\f', '\r'}) marks[mark] = true;
        marks[0xC2] = marks[0xE2] = true;
        return marks;
    }();
    return kMarks[static_cast<unsigned char>(byte)];
}

/// The bytes of the newline character at the beginning of the text, 0 when there is none.
std::size_t newlineLength(std::string_view text) {
    if (text.front() >= '\n' && text.front() <= '\r') return 1;
    if (text.starts_with("\u0085")) return 2;
    return text.starts_with("\u2028") || text.starts_with("\u2029") ? 3 : 0;
}

}  // namespace

void readRow(std::string_view& text, std::size_t limit, CsvRow& fields) {
    const std::string_view rest = text;
    fields.clear();
    std::size_t start = 0;
    std::size_t end = 0;
    std::size_t newline = 0;
    while (newline == 0) {
        end = static_cast<std::size_t>(
            std::find_if(rest.begin() + static_cast<std::ptrdiff_t>(end), rest.end(), isMark) -
            rest.begin());
        if (end == rest.size()) break;
        if (rest[end] != ';') {
            newline = newlineLength(rest.substr(end));
            if (newline == 0) ++end;
            continue;
        }
        if (fields.size() < limit) {
            fields.push_back(rest.substr(start, end - start));
            start = end + 1;
        }
        ++end;
    }
    text.remove_prefix(end + newline);

    const std::string_view line = rest.substr(0, end);
    const std::string_view trimmed = base::trimmedSpacesAndNewlines(line);
    if (trimmed.empty()) return fields.clear();
    const auto blanksBefore = static_cast<std::size_t>(trimmed.data() - line.data());
    if (fields.size() < limit) {
        fields.push_back(line.substr(start));
        fields.back().remove_suffix(line.size() - trimmed.size() - blanksBefore);
    }
    if (!fields.empty()) fields.front().remove_prefix(blanksBefore);
}

base::Result<std::vector<CsvRow>> readTable(std::string_view text, std::string_view columns) {
    constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();
    const auto failed = [](std::string message) {
        return base::Failure({"Table", 1, std::move(message)});
    };
    std::string_view rest = columns;
    CsvRow expected;
    readRow(rest, kAll, expected);
    CsvRow header;
    readRow(text, kAll, header);
    if (header != expected) return failed("the columns are not " + std::string(columns));

    std::vector<CsvRow> rows;
    while (!text.empty()) {
        readRow(text, kAll, rows.emplace_back());
        if (rows.back().size() != header.size()) {
            return failed("line " + std::to_string(rows.size() + 1) +
                          " has too few or too many fields");
        }
    }
    return rows;
}

}  // namespace kalvo::engine
