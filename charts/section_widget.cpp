#include "charts/section_widget.h"

#include "charts/text_block_widget.h"

namespace kalvo::charts {

SectionWidget::SectionWidget(const QString& title, QWidget* content)
    : title_(new TextBlockWidget), layout_(new QVBoxLayout(this)) {
    title_->setText(title);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(title_);
    layout_->addWidget(content);
    title_->setBuddy(content);
}

void SectionWidget::setStyle(widgets::FontStyle style, int spacing) {
    title_->setFont(widgets::font(style, widgets::FontWeight::kBold));
    layout_->setSpacing(spacing);
}

}  // namespace kalvo::charts
