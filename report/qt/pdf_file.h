#pragma once

#include <QByteArray>
#include <QString>

#include "base/result.h"
#include "report/report.h"

namespace kalvo::report {

/// Returns the report as a PDF file: two pages of A4, its fonts embedded, its text searchable, its
/// title, author, language and date of creation set.
[[nodiscard]] QByteArray pdfOf(const Report& report);

/// Writes a file beside `path` and renames it, so that a fault leaves what was there whole. An
/// error tells in Italian what went wrong.
[[nodiscard]] base::Result<void> saveFile(const QByteArray& bytes, const QString& path);

/// Returns "Kalvo - Trapani (TP).pdf", without what file systems refuse, at most 200 bytes long.
[[nodiscard]] QString suggestedFileName(const Report& report);

}  // namespace kalvo::report
