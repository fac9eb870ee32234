#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "app/qt/page_preview.h"
#include "base/bundle.h"
#include "base/url_opener.h"
#include "report/report.h"

namespace kalvo::app {

/// A window with a preview of the report, which saves it as a PDF file and copies its pages as
/// pictures. It shows the state of one moment, which it tells, until it is given another report.
class ReportWindow final : public QWidget {
    Q_OBJECT

 public:
    /// A window of its own that goes with `parent` and deletes itself when it is closed. What is
    /// passed by reference outlives it.
    ReportWindow(const base::Bundle& bundle, base::UrlOpener& urlOpener, QWidget* parent);

    void setReport(const report::Report& report);

    /// Writes the PDF file and says so, or why not.
    void save(const QString& path);

 private:
    QLayout* makeButtons();
    void chooseFile();
    void copyPage();
    void openSaved();
    void fail(const QString& what, const QString& reason);

    base::UrlOpener& urlOpener_;
    report::Report report_{};
    QString savedPath_;
    QLabel* title_;
    QLabel* status_;
    QPushButton* open_;
    PagePreview* preview_;
};

}  // namespace kalvo::app
