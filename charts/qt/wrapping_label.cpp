#include "charts/qt/wrapping_label.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QTextLayout>

namespace kalvo::charts {

namespace {

constexpr double kUnlimited = 1e6;  // points

struct TextLines {
    QTextLayout layout;
    QSizeF size;

    TextLines(QString text, const QFont& font, double width)
        : layout(text.replace(u'\n', QChar::LineSeparator), font) {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, size.height()});
            size = {std::max(size.width(), line.naturalTextWidth()), size.height() + line.height()};
        }
        layout.endLayout();
    }
};

}  // namespace

WrappingLabel::WrappingLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    // Makes a change of the text ask for a new height.
    setWordWrap(true);
}

QSize WrappingLabel::sizeHint() const {
    const QSizeF size = TextLines(text(), font(), kUnlimited).size;
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

QSize WrappingLabel::minimumSizeHint() const { return {1, fontMetrics().height()}; }

int WrappingLabel::heightForWidth(int width) const {
    return static_cast<int>(std::ceil(TextLines(text(), font(), width).size.height()));
}

void WrappingLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    TextLines(text(), font(), width()).layout.draw(&painter, {0, 0});
}

}  // namespace kalvo::charts
