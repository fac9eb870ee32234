#include "ui/segmented_control.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOption>

#include "ui/control_painter.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::ui {

namespace {

constexpr int kTrackHeight = 28;
constexpr int kTrackInset = 2;
constexpr double kThumbRadius = kCornerRadius - 1.5;

class Segment final : public QRadioButton {
 public:
    using QRadioButton::QRadioButton;

    [[nodiscard]] QSize sizeHint() const override {
        const QFontMetrics metrics(ui::font(FontStyle::kBody, FontWeight::kBold));
        return {metrics.horizontalAdvance(text()) + 20, kTrackHeight - 2 * kTrackInset};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
    [[nodiscard]] bool hitButton(const QPoint& position) const override {
        return rect().contains(position);
    }

    void paintEvent(QPaintEvent*) override {
        const Theme& theme = Theme::current();
        QPainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        if (isChecked()) {
            const QRectF thumb = rect().adjusted(0, 0, 0, -1);
            paintShadow(painter, thumb, kThumbRadius);
            paintBox(painter, thumb, kThumbRadius, theme.thumb, theme.thumbBorder);
        } else if (underMouse() || isDown()) {
            QColor veil = theme.text;
            veil.setAlphaF(isDown() ? 0.10F : 0.05F);
            paintBox(painter, QRectF(rect()), kThumbRadius, veil);
        }
        if (showsFocus(option)) {
            paintFocusRing(painter, QRectF(rect()), kThumbRadius);
        }
        painter.setFont(
            ui::font(FontStyle::kBody, isChecked() ? FontWeight::kBold : FontWeight::kRegular));
        painter.setPen(isChecked() ? theme.text : theme.secondaryText);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    }
};

}  // namespace

SegmentedControl::SegmentedControl(const QString& title,
                                   const QStringList& segments,
                                   QWidget* parent)
    : QWidget(parent), group_(new QButtonGroup(this)) {
    setAccessibleName(title);
    // A title's mnemonic leads only to what says that it takes the focus; the segments do take it.
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kTrackInset, kTrackInset, kTrackInset, kTrackInset);
    row->setSpacing(0);
    for (const QString& text : segments) {
        auto* segment = new Segment(text);
        // Equal shares, whatever the texts need.
        segment->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        // The tabulator stops once, at the chosen segment; the arrow keys go on from there.
        segment->setFocusPolicy(Qt::ClickFocus);
        connect(segment, &QRadioButton::toggled, this, [this, segment](bool isChosen) {
            segment->setFocusPolicy(isChosen ? Qt::StrongFocus : Qt::ClickFocus);
            if (isChosen) setFocusProxy(segment);
        });
        group_->addButton(segment, static_cast<int>(group_->buttons().size()));
        row->addWidget(segment, 1);
    }
    setIndex(0);
    connect(group_, &QButtonGroup::idClicked, this, &SegmentedControl::indexChosen);
    // The separators beside the thumb come and go with it.
    connect(group_, &QButtonGroup::idToggled, this, qOverload<>(&QWidget::update));
}

void SegmentedControl::setIndex(int index) {
    if (QAbstractButton* segment = group_->button(index)) segment->setChecked(true);
}

void SegmentedControl::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    QPainter painter(this);
    paintBox(painter, rect(), kCornerRadius, theme.track);
    for (int i = 1; i < group_->buttons().size(); ++i) {
        if (i == index() || i - 1 == index()) continue;
        const int x = group_->button(i)->x();
        painter.fillRect(QRectF(x, rect().y() + 8, hairlineWidth(painter), rect().height() - 16),
                         theme.fieldBorder);
    }
}

}  // namespace kalvo::ui
