#include "charts/estimate_box_widget.h"

#include <QPainter>

#include "charts/text_block_widget.h"
#include "platform/color.h"
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
      rule_(new QFrame),
      result_(new TextBlockWidget),
      layout_(new QVBoxLayout(this)) {
    title_->setText(QStringLiteral("Stima Fotovoltaica (FTV)"));
    rule_->setFixedHeight(1);
    rule_->setAutoFillBackground(true);
    QPalette ruleColours = rule_->palette();
    QColor ruleColour = Theme::current().color(TextRole::kPrimary);
    ruleColour.setAlphaF(0.12F);
    ruleColours.setColor(QPalette::Window, ruleColour);
    rule_->setPalette(ruleColours);
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
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(static_cast<float>(yellow.red),
                                      static_cast<float>(yellow.green),
                                      static_cast<float>(yellow.blue), stacked ? 0.12F : 0.1F));
    painter.drawRoundedRect(rect(), radius, radius);
}

}  // namespace kalvo::charts
