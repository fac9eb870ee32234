#include "ui/tinted_label.h"

#include <QPainter>

#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::ui {

namespace {

constexpr int kPadding = 8;  // points
constexpr double kRadius = 6;
constexpr int kSymbolSize = 16;
constexpr int kSymbolSpace = 22;  // the symbol and the gap behind it

}  // namespace

TintedLabel::TintedLabel(const QFont& font, const QColor& tint, QWidget* parent)
    : SelectableLabel(parent), tint_(tint) {
    setFont(font);
    setWordWrap(true);
    setMargin(kPadding);
}

void TintedLabel::setWarning(bool isWarning) {
    if (isWarning == isWarning_) return;
    isWarning_ = isWarning;
    setContentsMargins(isWarning ? kSymbolSpace : 0, 0, 0, 0);
    update();
}

void TintedLabel::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        paintBox(painter, rect(), kRadius, tint_, Theme::current().boxBorder);
        if (isWarning_) {
            // The text stands in the middle of the box, which has space for more lines.
            const QRect lines = fontMetrics().boundingRect(
                contentsRect().marginsRemoved({kPadding, kPadding, kPadding, kPadding}),
                static_cast<int>(alignment()) | Qt::TextWordWrap, text());
            const int firstLine = lines.top() + fontMetrics().lineSpacing() / 2;
            painter.drawPixmap(kPadding, firstLine - kSymbolSize / 2,
                               symbolPixmap(QStringLiteral("exclamationmark.triangle"), kSymbolSize,
                                            Theme::current().orangeText, devicePixelRatioF()));
        }
    }
    SelectableLabel::paintEvent(event);
}

}  // namespace kalvo::ui
