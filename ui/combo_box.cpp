#include "ui/combo_box.h"

#include <algorithm>
#include <numeric>

#include <QHelpEvent>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QWheelEvent>

#include "ui/compositing.h"
#include "ui/control_painter.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/tool_tip.h"

namespace kalvo::ui {

namespace {

constexpr int kPopupPadding = 4;  // points, inside the border
constexpr int kTextInset = 5;     // from the row's edge to its text, and to the tick
constexpr int kTickSize = 16;
constexpr int kTickSpace = kTickSize + 2 * kTextInset;
constexpr int kRowHeight = 26;
constexpr int kVisibleRows = 14;
constexpr int kWidestPopup = 480;

/// What an entry takes besides its text: 41 points with the border on both sides.
constexpr int kEntryExtra = kTextInset + kTickSpace + 2 * (kPopupPadding + 1);

class EntryDelegate final : public QStyledItemDelegate {
 public:
    explicit EntryDelegate(QComboBox& combo) : QStyledItemDelegate(&combo), combo_(combo) {}

    void paint(QPainter* painter,
               const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Theme& theme = Theme::current();
        const bool isSelected = option.state & QStyle::State_Selected;
        paintListSelection(option, *painter);
        painter->save();
        painter->setPen(isSelected ? QColor(Qt::white) : theme.text);
        const QRect space = textSpace(option);
        painter->drawText(space, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          elidedEntry(index.data().toString(), option.fontMetrics, space.width()));
        if (index.row() == combo_.currentIndex()) {
            painter->setPen(isSelected ? QColor(Qt::white) : theme.brandText);
            symbolIcon(QStringLiteral("checkmark"))
                .paint(painter, option.rect.right() + 1 - kTextInset - kTickSize,
                       option.rect.y() + (option.rect.height() - kTickSize) / 2, kTickSize,
                       kTickSize);
        }
        painter->restore();
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                                 const QModelIndex& /*index*/) const override {
        return {0, kRowHeight};
    }

    bool helpEvent(QHelpEvent* event,
                   QAbstractItemView* view,
                   const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const QString label = index.data().toString();
        const bool fits = option.fontMetrics.horizontalAdvance(label) <= textSpace(option).width();
        QToolTip::showText(event->globalPos(), fits ? QString() : plainToolTip(label), view);
        return true;
    }

 private:
    [[nodiscard]] static QRect textSpace(const QStyleOptionViewItem& option) {
        return option.rect.adjusted(kTextInset, 0, -kTickSpace, 0);
    }

    QComboBox& combo_;
};

/// Shows what is typed in the middle of the list.
class EntryList final : public QListView {
 public:
    void keyboardSearch(const QString& typed) override {
        QListView::keyboardSearch(typed);
        scrollTo(currentIndex(), PositionAtCenter);
    }
};

}  // namespace

QString elidedEntry(const QString& label, const QFontMetrics& metrics, int width) {
    if (metrics.horizontalAdvance(label) <= width) return label;
    constexpr int kLeastName = 40;  // points
    const qsizetype note = label.lastIndexOf(u" (", label.lastIndexOf(u" ["));
    const QString kept = note > 0 ? label.mid(note) : QString();
    const int nameWidth = width - metrics.horizontalAdvance(kept);
    if (nameWidth < kLeastName) return metrics.elidedText(label, Qt::ElideRight, width);
    return metrics.elidedText(label.left(label.size() - kept.size()), Qt::ElideRight, nameWidth) +
           kept;
}

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) {
    auto* list = new EntryList;
    list->setUniformItemSizes(true);
    setView(list);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaxVisibleItems(kVisibleRows);
}

void ComboBox::setUpPopup() {
    isPopupSetUp_ = true;
    view()->setItemDelegate(new EntryDelegate(*this));
    view()->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QWidget* popup = view()->parentWidget();
    popup->setContentsMargins(kPopupPadding, kPopupPadding, kPopupPadding, kPopupPadding);
    if (isDesktopComposited()) popup->setAttribute(Qt::WA_TranslucentBackground);
}

int ComboBox::popupWidth() const {
    std::vector<int> rows;
    if (longestRows) {
        rows = longestRows();
    } else {
        rows.resize(static_cast<std::size_t>(count()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    int text = 0;
    for (const int row : rows) {
        text = std::max(text, view()->fontMetrics().horizontalAdvance(itemText(row)));
    }
    const int bar = count() > kVisibleRows ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    return std::max(width(), std::min(text + kEntryExtra + bar, kWidestPopup));
}

void ComboBox::showPopup() {
    if (count() == 0) return;
    if (!isPopupSetUp_) setUpPopup();
    view()->parentWidget()->setFixedWidth(popupWidth());
    QComboBox::showPopup();
    view()->scrollTo(view()->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void ComboBox::openAt(int row) {
    showPopup();
    const QModelIndex entry = model()->index(row, modelColumn());
    view()->setCurrentIndex(entry);
    view()->scrollTo(entry, QAbstractItemView::PositionAtCenter);
}

QString ComboBox::elidedText() const {
    const int space = comboBoxTextSpace(rect()).width();
    return fontMetrics().horizontalAdvance(currentText()) > space ? currentText() : QString();
}

void ComboBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace kalvo::ui
