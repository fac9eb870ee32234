#include "app/qt/report_window.h"

#include <algorithm>

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

#include "base/qt/qstring.h"
#include "report/qt/page_painter.h"
#include "report/qt/pdf_file.h"
#include "report/report_text.h"
#include "ui/theme.h"

namespace kalvo::app {

namespace {

using ui::FontStyle;
using ui::FontWeight;
using ui::TextRole;

constexpr QSize kPreferredSize(760, 900);
constexpr QSize kFrame(0, 48);  // points that a window's frame may take

/// How many pixels a point of the page has in a copied picture: 200 an inch.
constexpr double kCopyScale = 200.0 / 72;

}  // namespace

ReportWindow::ReportWindow(const base::Bundle& bundle, base::UrlOpener& urlOpener, QWidget* parent)
    : QWidget(parent, Qt::Window),
      urlOpener_(urlOpener),
      title_(ui::makeLabel(QString(), FontStyle::kHeadline)),
      status_(ui::makeLabel(
          QString(), FontStyle::kCaption, FontWeight::kRegular, TextRole::kSecondary)),
      open_(new QPushButton(QStringLiteral("&Apri"))),
      preview_(new PagePreview) {
    setAttribute(Qt::WA_DeleteOnClose);
    report::loadTabularFonts(bundle);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 12, 0, 12);
    column->setSpacing(12);
    column->addWidget(title_);
    column->addWidget(preview_, 1);
    column->addLayout(makeButtons());
    title_->setContentsMargins(16, 0, 16, 0);
    title_->setMinimumWidth(1);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(Qt::CTRL | Qt::Key_W, this), &QShortcut::activated, this,
            &QWidget::close);
    resize(kPreferredSize.boundedTo(screen()->availableSize() - kFrame));
    preview_->setFocus();
}

QLayout* ReportWindow::makeButtons() {
    auto* save = new QPushButton(QStringLiteral("&Salva PDF…"));
    save->setProperty("prominent", true);
    auto* copy = new QPushButton(QStringLiteral("&Copia immagine"));
    copy->setToolTip(QStringLiteral("Copia la pagina che si vede"));
    auto* close = new QPushButton(QStringLiteral("C&hiudi"));
    open_->hide();
    connect(save, &QPushButton::clicked, this, &ReportWindow::chooseFile);
    connect(copy, &QPushButton::clicked, this, &ReportWindow::copyPage);
    connect(open_, &QPushButton::clicked, this, &ReportWindow::openSaved);
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(16, 0, 16, 0);
    row->setSpacing(8);
    row->addWidget(save);
    row->addWidget(copy);
    row->addWidget(status_, 1);
    row->addWidget(open_);
    row->addWidget(close);
    status_->setMinimumWidth(1);
    return row;
}

void ReportWindow::setReport(const report::Report& report) {
    report_ = report;
    const QString place = base::toQString(report::placeName(report));
    const QString taken =
        base::toQString(report::formatDate(report.taken) + ", " + report::formatTime(report.taken));
    setWindowTitle(QStringLiteral("Relazione: %1").arg(place));
    title_->setText(QStringLiteral("%1 · situazione del %2").arg(place, taken));
    title_->setToolTip(title_->text().toHtmlEscaped());
    status_->clear();
    open_->hide();
    preview_->setReport(report);
}

void ReportWindow::chooseFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog(this, QStringLiteral("Salva la relazione"), folder,
                                   QStringLiteral("Documenti PDF (*.pdf)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // Asks before it lets an existing file be replaced.
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("pdf"));
    dialog->selectFile(report::suggestedFileName(report_));
    connect(dialog, &QFileDialog::fileSelected, this, &ReportWindow::save);
    dialog->open();
}

void ReportWindow::save(const QString& path) {
    const auto saved = report::saveFile(report::pdfOf(report_), path);
    open_->setVisible(saved.has_value());
    if (!saved) {
        status_->clear();
        fail(QStringLiteral("La relazione non è stata salvata."),
             base::toQString(saved.error().message));
        return;
    }
    savedPath_ = path;
    status_->setText(QStringLiteral("Salvata: %1").arg(QFileInfo(path).fileName()));
    status_->setToolTip(QDir::toNativeSeparators(path).toHtmlEscaped());
}

void ReportWindow::copyPage() {
    const int page = preview_->shownPage();
    QGuiApplication::clipboard()->setImage(report::pagePicture(report_, page, kCopyScale));
    status_->setText(QStringLiteral("Pagina %1 copiata").arg(page));
}

void ReportWindow::openSaved() {
    const QByteArray address = QUrl::fromLocalFile(savedPath_).toEncoded();
    if (urlOpener_.open(address.toStdString())) return;
    fail(QStringLiteral("La relazione non si apre."),
         QStringLiteral("Nessun programma del sistema apre i file PDF."));
}

void ReportWindow::fail(const QString& what, const QString& reason) {
    auto* box = new QMessageBox(QMessageBox::Warning, windowTitle(), what, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(reason);
    box->open();
}

}  // namespace kalvo::app
