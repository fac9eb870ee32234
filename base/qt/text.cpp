#include "base/text.h"

#include <algorithm>

#include <simdjson.h>
#include <QList>
#include <QString>

#include "base/qt/qstring.h"

namespace kalvo::base {

namespace {

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

bool isAllAscii(std::string_view text) { return std::all_of(text.begin(), text.end(), isAscii); }

/// Case mapping of plain ASCII, by far the most of the texts: every letter of the range moved.
std::string asciiCaseMapped(std::string_view text, char first, char last, int shift) {
    std::string shifted(text);
    for (char& letter : shifted) {
        if (letter >= first && letter <= last) letter = static_cast<char>(letter + shift);
    }
    return shifted;
}

/// One code point of a UTF-8 text and how many bytes it takes; a stray byte counts as U+FFFD.
struct CodePoint {
    char32_t value;
    std::size_t length;
};

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

CodePoint decodeFront(std::string_view text) {
    if (isAscii(text.front())) return {static_cast<unsigned char>(text.front()), 1};
    std::size_t length = 1;
    while (length < text.size() && length < 4 && isContinuation(text[length])) ++length;
    const QList<uint> points = toQString(text.substr(0, length)).toUcs4();
    return {points.size() == 1 ? points.front() : U'\uFFFD', length};
}

CodePoint decodeBack(std::string_view text) {
    if (isAscii(text.back())) return {static_cast<unsigned char>(text.back()), 1};
    std::size_t start = text.size() - 1;
    while (start > 0 && text.size() - start < 4 && isContinuation(text[start])) --start;
    return {decodeFront(text.substr(start)).value, text.size() - start};
}

template <class Predicate>
std::string_view trimmedWhile(std::string_view text, Predicate isDropped) {
    while (!text.empty()) {
        const CodePoint front = decodeFront(text);
        if (!isDropped(front.value)) break;
        text.remove_prefix(front.length);
    }
    while (!text.empty()) {
        const CodePoint back = decodeBack(text);
        if (!isDropped(back.value)) break;
        text.remove_suffix(back.length);
    }
    return text;
}

bool isSpace(char32_t character) {
    if (character < 0x80) return character == U' ' || character == U'\t';
    return QChar::category(character) == QChar::Separator_Space;
}

bool isNewline(char32_t character) {
    return (character >= U'\n' && character <= U'\r') || character == U'\u0085' ||
           character == U'\u2028' || character == U'\u2029';
}

}  // namespace

std::string lowercased(std::string_view text) {
    if (!isAllAscii(text)) return toQString(text).toLower().toStdString();
    return asciiCaseMapped(text, 'A', 'Z', 'a' - 'A');
}

std::string uppercased(std::string_view text) {
    if (!isAllAscii(text)) return toQString(text).toUpper().toStdString();
    return asciiCaseMapped(text, 'a', 'z', 'A' - 'a');
}

std::string_view trimmedSpaces(std::string_view text) { return trimmedWhile(text, isSpace); }

std::string_view trimmedSpacesAndNewlines(std::string_view text) {
    return trimmedWhile(
        text, [](char32_t character) { return isSpace(character) || isNewline(character); });
}

std::string_view trimmedToAlphanumerics(std::string_view text) {
    return trimmedWhile(text, [](char32_t character) {
        return !QChar::isLetterOrNumber(character) && !QChar::isMark(character);
    });
}

std::size_t codePointCount(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !isContinuation(byte); }));
}

bool isValidUtf8(std::string_view bytes) {
    return simdjson::validate_utf8(bytes.data(), bytes.size());
}

}  // namespace kalvo::base
