#include "ui/notice.h"

#include <QPainter>

#include "ui/accessible_role.h"
#include "ui/announcement.h"
#include "ui/elided_label.h"
#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::ui {

namespace {

constexpr int kHeight = 28;  // points
constexpr int kSymbolLeft = 8;
constexpr int kSymbolSize = 16;
constexpr int kTextLeft = 30;
constexpr int kTextRight = 10;

struct NoticeLook {
    QString symbol;
    QColor symbolColor;
    QColor fill;
    QColor border;
    QColor text;
};

NoticeLook lookOf(Notice::Kind kind) {
    const Theme& theme = Theme::current();
    if (kind == Notice::Kind::kWarning) {
        return {QStringLiteral("exclamationmark.triangle"), theme.orangeText, theme.warningFill,
                theme.warningBorder, theme.text};
    }
    const Theme& other = theme.dark ? Theme::lightAppearance() : Theme::darkAppearance();
    return {QStringLiteral("checkmark"), other.brandText, theme.text, Qt::transparent,
            theme.window};
}

}  // namespace

Notice::Notice(Kind kind, QWidget* parent)
    : QWidget(parent), kind_(kind), label_(new ElidedLabel(QString(), this)) {
    installAccessibleRole<Notice, QAccessible::AlertMessage>();
    label_->setFont(ui::font(FontStyle::kCaption));
    QPalette colors = label_->palette();
    colors.setColor(QPalette::WindowText, lookOf(kind).text);
    label_->setPalette(colors);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    if (kind == Kind::kConfirmation) setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Notice::setText(const QString& text) {
    if (text == label_->text()) return;
    label_->setText(text);
    setAccessibleName(text);
    if (isVisible()) announce(*this);
}

QSize Notice::sizeHint() const {
    return {kTextLeft + label_->fontMetrics().horizontalAdvance(label_->text()) + kTextRight,
            kHeight};
}

QSize Notice::minimumSizeHint() const { return {0, kHeight}; }

void Notice::paintEvent(QPaintEvent* /*event*/) {
    const NoticeLook look = lookOf(kind_);
    QPainter painter(this);
    paintBox(painter, rect(), kCornerRadius, look.fill, look.border);
    painter.drawPixmap(
        kSymbolLeft, (height() - kSymbolSize) / 2,
        symbolPixmap(look.symbol, kSymbolSize, look.symbolColor, devicePixelRatioF()));
}

void Notice::resizeEvent(QResizeEvent* /*event*/) {
    label_->setGeometry(rect().adjusted(kTextLeft, 0, -kTextRight, 0));
}

void Notice::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) announce(*this);
}

}  // namespace kalvo::ui
