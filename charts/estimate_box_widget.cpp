#include "charts/estimate_box_widget.h"

#include <QPainter>

#include "charts/text_block_widget.h"
#include "platform/color.h"
#include "widgets/divider.h"
#include "widgets/paint.h"
#include "widgets/theme.h"

namespace kalvo::charts {

namespace {

using widgets::FontStyle;
using widgets::FontWeight;
using widgets::TextRole;
using widgets::Theme;

constexpr int kPadding = 16;

void setTextColor(QWidget& widget, TextRole role) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, Theme::current().color(role));
    widget.setPalette(palette);
}

}  // namespace

EstimateBoxWidget::EstimateBoxWidget(QWidget* parent)
    : QWidget(parent),
      title_(new TextBlockWidget),
      details_(new TextBlockWidget),
      rule_(new widgets::Divider),
      result_(new TextBlockWidget),
      layout_(new QVBoxLayout(this)) {
    title_->setText(QStringLiteral("Stima Fotovoltaica (FTV)"));
    setTextColor(*result_, TextRole::kOrange);
    layout_->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    for (QWidget* item : std::initializer_list<QWidget*>{title_, details_, rule_, result_}) {
        layout_->addWidget(item);
    }
}

void EstimateBoxWidget::setTexts(const QString& details, const QString& result) {
    if (details != details_->text()) details_->setText(details);
    if (result != result_->text()) result_->setText(result);
}

void EstimateBoxWidget::arrange(Arrangement arrangement) {
    arrangement_ = arrangement;
    const bool stacked = arrangement == Arrangement::kStacked;
    layout_->setSpacing(stacked ? 10 : 8);
    title_->setFont(stacked ? widgets::font(FontStyle::kTitle3, FontWeight::kBold)
                            : widgets::font(FontStyle::kHeadline));
    setTextColor(*title_, stacked ? TextRole::kOrange : TextRole::kPrimary);
    details_->setFont(widgets::font(stacked ? FontStyle::kSubheadline : FontStyle::kCaption));
    rule_->setVisible(stacked);
    result_->setFont(
        widgets::font(stacked ? FontStyle::kHeadline : FontStyle::kSubheadline, FontWeight::kBold));
    update();
}

void EstimateBoxWidget::paintEvent(QPaintEvent* /*event*/) {
    const bool stacked = arrangement_ == Arrangement::kStacked;
    const platform::Color& yellow = platform::kYellow;
    const double radius = stacked ? 12 : 8;
    const QColor fill =
        QColor::fromRgbF(static_cast<float>(yellow.red), static_cast<float>(yellow.green),
                         static_cast<float>(yellow.blue), stacked ? 0.12F : 0.1F);
    QPainter painter(this);
    widgets::paintBox(painter, rect(), radius, fill);
}

}  // namespace kalvo::charts
