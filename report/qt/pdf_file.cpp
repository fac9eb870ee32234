#include "report/qt/pdf_file.h"

#include <QBuffer>
#include <QFile>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSaveFile>

#include "base/qt/qstring.h"
#include "report/pages.h"
#include "report/qt/page_painter.h"
#include "report/qt/pdf_update.h"
#include "report/report_text.h"

namespace kalvo::report {

namespace {

constexpr const char* kMaker = "Kalvo Wind & Solar";

QString titleOf(const Report& report) {
    return QStringLiteral("Relazione sulla produzione annua stimata: ") +
           base::toQString(placeName(report));
}

/// Why a file could not be written, as a sentence.
QString reasonFor(const QFileDevice& file) {
    switch (file.error()) {
        case QFileDevice::PermissionsError:
            return QStringLiteral("Non è permesso scrivere in questa cartella.");
        case QFileDevice::ResourceError:
            return QStringLiteral("Lo spazio sul disco non basta.");
        case QFileDevice::OpenError:
            return QStringLiteral("Il file non si può creare in questa cartella.");
        default:
            return QStringLiteral("Il file non si può scrivere (%1).").arg(file.errorString());
    }
}

}  // namespace

QByteArray pdfOf(const Report& report) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setPageLayout(
            QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
        constexpr int kPointsPerInch = 72;
        writer.setResolution(kPointsPerInch);
        writer.setTitle(titleOf(report));
        writer.setCreator(QString::fromUtf8(kMaker));
        QPainter painter(&writer);
        for (int page = 1; page <= kPageCount; ++page) {
            if (page > 1) writer.newPage();
            painter.save();
            paintPage(painter, report, page);
            painter.restore();
        }
    }
    return withLanguageAndAuthor(file.data(), "it-IT", kMaker);
}

base::Result<void> saveFile(const QByteArray& bytes, const QString& path) {
    QSaveFile file(path);
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (isSaved) return {};
    return base::Failure({"File", static_cast<int>(file.error()), reasonFor(file).toStdString()});
}

QString suggestedFileName(const Report& report) {
    constexpr int kMostBytes = 200;  // of the 255 that file systems take
    QString name = base::toQString(placeName(report));
    for (QChar& letter : name) {
        // What Windows and the shells refuse, and a separator of folders.
        if (QStringLiteral("/\\:*?\"<>|").contains(letter) || !letter.isPrint()) letter = u'_';
    }
    while (name.toUtf8().size() > kMostBytes) name.chop(1);
    if (!name.isEmpty() && name.back().isHighSurrogate()) name.chop(1);
    return QStringLiteral("Kalvo - %1.pdf").arg(name.trimmed());
}

}  // namespace kalvo::report
