#pragma once

#include <QVBoxLayout>

#include "ui/theme.h"

namespace kalvo::charts {

class WrappingLabel;

/// A title over its content, left-aligned.
class TitledSection final : public QWidget {
    Q_OBJECT

 public:
    TitledSection(const QString& title, QWidget* content);

    void setStyle(ui::FontStyle style, int spacing);

 private:
    WrappingLabel* title_;
    QVBoxLayout* layout_;
};

}  // namespace kalvo::charts
