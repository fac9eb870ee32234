#pragma once

#include <QVBoxLayout>

#include "widgets/theme.h"

namespace kalvo::charts {

class TextBlockWidget;

/// A title over its content, left-aligned.
class SectionWidget final : public QWidget {
    Q_OBJECT

 public:
    SectionWidget(const QString& title, QWidget* content);

    void setStyle(widgets::FontStyle style, int spacing);

 private:
    TextBlockWidget* title_;
    QVBoxLayout* layout_;
};

}  // namespace kalvo::charts
