#pragma once

#include <QDialog>

namespace kalvo::app {

/// The panel that names the application, its developer and its copyright. It deletes itself when it
/// is closed.
class AboutPanel final : public QDialog {
    Q_OBJECT

 public:
    explicit AboutPanel(QWidget* parent);
};

}  // namespace kalvo::app
