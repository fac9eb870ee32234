#pragma once

#include <QByteArray>

namespace kalvo::report {

/// Returns a PDF file as QPdfWriter of Qt 6.4 writes it with its language (as "it-IT") and author
/// added, which that class cannot set: an incremental update (ISO 32000-1, 7.5.6) after its last
/// byte replaces the catalog and the information dictionary. A file of another form is returned as
/// it is.
[[nodiscard]] QByteArray withLanguageAndAuthor(const QByteArray& pdf,
                                               const QByteArray& language,
                                               const QByteArray& author);

}  // namespace kalvo::report
