#include "ui/segmented_control.h"

#include <algorithm>

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

}  // namespace

class SegmentedControl::Segment final : public QRadioButton {
 public:
    using QRadioButton::QRadioButton;

    /// The width of the text in points, as wide as it is while the segment is chosen.
    [[nodiscard]] int textWidth(FontStyle style) const {
        return QFontMetrics(ui::font(style, FontWeight::kBold)).horizontalAdvance(text());
    }
    void setStyle(FontStyle style) {
        if (style_ == style) return;
        style_ = style;
        update();
    }

    [[nodiscard]] QSize sizeHint() const override {
        return {textWidth(FontStyle::kBody) + 20, kTrackHeight - 2 * kTrackInset};
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
        painter.setFont(ui::font(style_, isChecked() ? FontWeight::kBold : FontWeight::kRegular));
        painter.setPen(isChecked() ? theme.text : theme.secondaryText);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    }

 private:
    FontStyle style_ = FontStyle::kBody;
};

SegmentedControl::SegmentedControl(const QString& title,
                                   const QStringList& segments,
                                   QWidget* parent)
    : QWidget(parent), group_(new QButtonGroup(this)), row_(new QHBoxLayout(this)) {
    setAccessibleName(title);
    // A title's mnemonic leads only to what says that it takes the focus; the segments do take it.
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    row_->setContentsMargins(kTrackInset, kTrackInset, kTrackInset, kTrackInset);
    row_->setSpacing(0);
    for (const QString& text : segments) {
        auto* segment = new Segment(text);
        // Shares of the track, whatever the texts need.
        segment->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        // The tabulator stops once, at the chosen segment; the arrow keys go on from there.
        segment->setFocusPolicy(Qt::ClickFocus);
        connect(segment, &QRadioButton::toggled, this, [this, segment](bool isChosen) {
            segment->setFocusPolicy(isChosen ? Qt::StrongFocus : Qt::ClickFocus);
            if (isChosen) setFocusProxy(segment);
        });
        group_->addButton(segment, static_cast<int>(segments_.size()));
        row_->addWidget(segment, 1);
        segments_.push_back(segment);
    }
    setIndex(0);
    connect(group_, &QButtonGroup::idClicked, this, &SegmentedControl::indexChosen);
    // The separators beside the thumb come and go with it.
    connect(group_, &QButtonGroup::idToggled, this, qOverload<>(&QWidget::update));
}

void SegmentedControl::setIndex(int index) {
    if (QAbstractButton* segment = group_->button(index)) segment->setChecked(true);
}

void SegmentedControl::setNote(const QString& note) {
    if (note == accessibleDescription()) return;
    setAccessibleDescription(note);
    for (Segment* segment : segments_) {
        segment->setToolTip(note);
        segment->setAccessibleDescription(note);
    }
}

void SegmentedControl::resizeEvent(QResizeEvent*) {
    constexpr int kTextMargins = 12;  // points, on both sides together
    const int share = (width() - 2 * kTrackInset) / static_cast<int>(segments_.size());
    const auto fits = [&](FontStyle style) {
        return std::ranges::all_of(segments_, [&](const Segment* segment) {
            return segment->textWidth(style) + kTextMargins <= share;
        });
    };
    FontStyle style = FontStyle::kBody;
    if (!fits(style)) style = FontStyle::kCaption;
    if (!fits(style)) style = FontStyle::kCaption2;
    const bool isEqual = fits(style);
    for (std::size_t i = 0; i < segments_.size(); ++i) {
        segments_[i]->setStyle(style);
        row_->setStretch(static_cast<int>(i),
                         isEqual ? 1 : segments_[i]->textWidth(style) + kTextMargins);
    }
}

void SegmentedControl::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::current();
    QPainter painter(this);
    paintBox(painter, rect(), kCornerRadius, theme.track, theme.trackBorder);
    for (int i = 1; i < static_cast<int>(segments_.size()); ++i) {
        if (i == index() || i - 1 == index()) continue;
        const int x = segments_[static_cast<std::size_t>(i)]->x();
        painter.fillRect(QRectF(x, rect().y() + 8, hairlineWidth(painter), rect().height() - 16),
                         theme.fieldBorder);
    }
}

}  // namespace kalvo::ui
