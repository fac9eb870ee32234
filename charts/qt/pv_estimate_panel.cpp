#include "charts/qt/pv_estimate_panel.h"

#include <QPainter>

#include "charts/qt/wrapping_label.h"
#include "graphics/color.h"
#include "graphics/qt/conversions.h"
#include "ui/divider.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::charts {

namespace {

using ui::FontStyle;
using ui::FontWeight;
using ui::TextRole;
using ui::Theme;

constexpr int kPadding = 16;

void setTextColor(QWidget& widget, TextRole role) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, Theme::current().color(role));
    widget.setPalette(palette);
}

}  // namespace

PvEstimatePanel::PvEstimatePanel(QWidget* parent)
    : QWidget(parent),
      title_(new WrappingLabel),
      details_(new WrappingLabel),
      rule_(new ui::Divider),
      result_(new WrappingLabel),
      layout_(new QVBoxLayout(this)) {
    title_->setText(QStringLiteral("Stima Fotovoltaica (FTV)"));
    setTextColor(*result_, TextRole::kOrange);
    layout_->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    for (QWidget* item : std::initializer_list<QWidget*>{title_, details_, rule_, result_}) {
        layout_->addWidget(item);
    }
}

void PvEstimatePanel::setTexts(const QString& details, const QString& result) {
    if (details != details_->text()) details_->setText(details);
    if (result != result_->text()) result_->setText(result);
}

void PvEstimatePanel::setArrangement(Arrangement arrangement) {
    arrangement_ = arrangement;
    const bool stacked = arrangement == Arrangement::kStacked;
    layout_->setSpacing(stacked ? 10 : 8);
    title_->setFont(stacked ? ui::font(FontStyle::kTitle3, FontWeight::kBold)
                            : ui::font(FontStyle::kHeadline));
    setTextColor(*title_, stacked ? TextRole::kOrange : TextRole::kPrimary);
    details_->setFont(ui::font(stacked ? FontStyle::kSubheadline : FontStyle::kCaption));
    rule_->setVisible(stacked);
    result_->setFont(
        ui::font(stacked ? FontStyle::kHeadline : FontStyle::kSubheadline, FontWeight::kBold));
    update();
}

void PvEstimatePanel::paintEvent(QPaintEvent* /*event*/) {
    const bool stacked = arrangement_ == Arrangement::kStacked;
    const double radius = stacked ? 12 : 8;
    const QColor fill = graphics::toQColor(graphics::kYellow.withOpacity(stacked ? 0.12 : 0.1));
    QPainter painter(this);
    ui::paintBox(painter, rect(), radius, fill, Theme::current().boxBorder);
}

}  // namespace kalvo::charts
