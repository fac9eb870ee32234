#include "charts/qt/titled_section.h"

#include "charts/qt/wrapping_label.h"

namespace kalvo::charts {

TitledSection::TitledSection(const QString& title, QWidget* content)
    : title_(new WrappingLabel), layout_(new QVBoxLayout(this)) {
    title_->setText(title);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(title_);
    layout_->addWidget(content);
    title_->setBuddy(content);
}

void TitledSection::setStyle(ui::FontStyle style, int spacing) {
    title_->setFont(ui::font(style, ui::FontWeight::kBold));
    layout_->setSpacing(spacing);
}

}  // namespace kalvo::charts
