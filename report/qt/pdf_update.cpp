#include "report/qt/pdf_update.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <QList>

namespace kalvo::report {

namespace {

/// Where the objects of a file lie, by their number, and which of them are to be replaced.
struct Structure {
    std::vector<qsizetype> offsets;
    qsizetype tableOffset;
    qsizetype catalog;
    qsizetype information;
};

/// The number after the last occurrence of a word, or nothing.
std::optional<qsizetype> numberAfter(const QByteArray& text, const char* word) {
    const qsizetype at = text.lastIndexOf(word);
    if (at < 0) return std::nullopt;
    // "startxref\n303296\n", "/Size 50\n", "/Root 2 0 R\n"
    const QByteArray rest = text.mid(at + qsizetype(qstrlen(word)), 20).simplified();
    bool isNumber = false;
    const qlonglong number = rest.split(' ').constFirst().toLongLong(&isNumber);
    return isNumber && number >= 0 ? std::optional<qsizetype>(number) : std::nullopt;
}

/// Reads the only cross-reference table of a file: "xref", "0 <count>", and an entry of twenty
/// bytes an object, which begins with its offset.
std::optional<Structure> structureOf(const QByteArray& pdf) {
    constexpr qsizetype kEntrySize = 20;
    constexpr qsizetype kOffsetDigits = 10;
    const auto table = numberAfter(pdf, "startxref");
    if (!table) return std::nullopt;
    const QByteArray end = pdf.mid(*table);
    const auto size = numberAfter(end, "/Size");
    const auto catalog = numberAfter(end, "/Root");
    const auto information = numberAfter(end, "/Info");
    if (!size || !catalog || !information) return std::nullopt;
    const QByteArray head = "xref\n0 " + QByteArray::number(*size) + "\n";
    const bool isComplete = end.startsWith(head) && end.size() > head.size() + *size * kEntrySize &&
                            std::max(*catalog, *information) < *size;
    if (!isComplete) return std::nullopt;
    Structure structure{{}, *table, *catalog, *information};
    for (qsizetype i = 0; i < *size; ++i) {
        structure.offsets.push_back(
            end.mid(head.size() + i * kEntrySize, kOffsetDigits).toLongLong());
    }
    return structure;
}

/// An object's bytes with an entry put first into its dictionary; empty if it has none.
QByteArray withEntry(const QByteArray& pdf,
                     const Structure& structure,
                     qsizetype object,
                     const QByteArray& entry) {
    const qsizetype begin = structure.offsets[static_cast<std::size_t>(object)];
    qsizetype end = structure.tableOffset;
    for (const qsizetype offset : structure.offsets) {
        if (offset > begin) end = std::min(end, offset);
    }
    const QByteArray head = QByteArray::number(object) + " 0 obj\n<<";
    QByteArray bytes = pdf.mid(begin, end - begin);
    if (!bytes.startsWith(head)) return {};
    return bytes.insert(head.size(), "\n" + entry);
}

QByteArray tableEntry(qsizetype object, qsizetype offset) {
    return QByteArray::number(object) + " 1\n" +
           QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
}

}  // namespace

QByteArray withLanguageAndAuthor(const QByteArray& pdf,
                                 const QByteArray& language,
                                 const QByteArray& author) {
    const std::optional<Structure> structure = structureOf(pdf);
    if (!structure) return pdf;
    const QByteArray catalog =
        withEntry(pdf, *structure, structure->catalog, "/Lang (" + language + ")");
    const QByteArray information =
        withEntry(pdf, *structure, structure->information, "/Author (" + author + ")");
    if (catalog.isEmpty() || information.isEmpty()) return pdf;

    const qsizetype informationOffset = pdf.size();
    const qsizetype catalogOffset = informationOffset + information.size();
    const qsizetype tableOffset = catalogOffset + catalog.size();
    return pdf + information + catalog + "xref\n" +
           tableEntry(structure->information, informationOffset) +
           tableEntry(structure->catalog, catalogOffset) + "trailer\n<<\n/Size " +
           QByteArray::number(qsizetype(structure->offsets.size())) + "\n/Root " +
           QByteArray::number(structure->catalog) + " 0 R\n/Info " +
           QByteArray::number(structure->information) + " 0 R\n/Prev " +
           QByteArray::number(structure->tableOffset) + "\n>>\nstartxref\n" +
           QByteArray::number(tableOffset) + "\n%%EOF\n";
}

}  // namespace kalvo::report
