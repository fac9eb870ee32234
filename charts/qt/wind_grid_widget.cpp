#include "charts/qt/wind_grid_widget.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "base/qt/qstring.h"
#include "engine/calculation_engine.h"
#include "engine/wind_range.h"
#include "graphics/qt/conversions.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::charts {

namespace {

using engine::CalculationEngine;
using engine::WindRange;
using ui::FontStyle;
using ui::FontWeight;
using ui::Theme;

constexpr int kRows = static_cast<int>(WindRange::kCount);
constexpr int kColumns = 13;
constexpr int kColumnGap = 12;
constexpr int kRowGap = 6;
constexpr int kRule = 1;
constexpr int kDot = 8;
constexpr int kDotGap = 8;
/// Space for the focus ring before and after a cell's text, out of the gap between columns.
constexpr int kInset = WindGridWidget::kInset;

int advance(const QFontMetricsF& metrics, const QString& text) {
    return static_cast<int>(std::ceil(metrics.horizontalAdvance(text)));
}

int lineHeight(const QFont& font) { return QFontMetrics(font).height(); }

/// Month names over a rule, without the bevels of a header that can be clicked.
class Header final : public QHeaderView {
 public:
    explicit Header(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
        setFont(ui::font(FontStyle::kCaption, FontWeight::kBold));
        setSectionResizeMode(QHeaderView::Fixed);
        setMinimumSectionSize(1);
        setHighlightSections(false);
        setSectionsClickable(true);
        viewport()->setAutoFillBackground(false);
    }

    /// The gap above the first row is half within the row.
    [[nodiscard]] QSize sizeHint() const override {
        return {length(), lineHeight(font()) + kRowGap + kRule + kRowGap / 2};
    }

 protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override {
        painter->setFont(font());
        const bool isSelected =
            section > 0 && selectionModel()->columnIntersectsSelection(section, {});
        painter->setPen(isSelected ? Theme::current().brandText : Theme::current().text);
        painter->drawText(rect.adjusted(kInset, 0, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                          model()->headerData(section, Qt::Horizontal).toString());
        const int left = rect.left() + (section == 0 ? kInset : 0);
        const int right = rect.right() + 1 - (section + 1 == count() ? kInset : 0);
        painter->fillRect(QRect(left, lineHeight(font()) + kRowGap, right - left, kRule),
                          Theme::current().divider);
    }
};

/// Cells whose text begins at their left edge, after the class's dot in the first column.
class CellDelegate final : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter,
               const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (isSelectedFigure(option, index)) paintSelection(*painter, option.rect, index);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        QRect rect = option.rect.adjusted(kInset, 0, 0, 0);
        const QVariant color = index.data(Qt::DecorationRole);
        if (color.isValid()) {
            const QRectF dot(rect.left(), rect.center().y() + 0.5 - kDot / 2.0, kDot, kDot);
            paintDot(*painter, dot, color.value<QColor>(), index.row());
            rect.setLeft(rect.left() + kDot + kDotGap);
        }
        painter->setPen(textColor(option, index));
        painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
        painter->restore();
        const QStyle::State focused = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        if ((option.state & focused) == focused) {
            const bool isLast = index.column() + 1 == index.model()->columnCount();
            const int after = isLast ? 0 : kColumnGap - 2 * kInset;
            ui::paintFocusRing(*painter, option.rect.adjusted(0, 1, -after, -1), 4);
        }
    }

 private:
    [[nodiscard]] const QItemSelectionModel& selection() const {
        return *qobject_cast<const QAbstractItemView*>(parent())->selectionModel();
    }

    /// A class's label is selected with its row, but shows it by its color alone.
    static bool isSelectedFigure(const QStyleOptionViewItem& option, const QModelIndex& index) {
        return index.column() > 0 && (option.state & QStyle::State_Selected);
    }

    [[nodiscard]] QColor textColor(const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
        if (isSelectedFigure(option, index)) return Theme::current().text;
        const bool isHeading = index.column() == 0;
        if (isHeading && selection().rowIntersectsSelection(index.row(), {})) {
            return Theme::current().brandText;
        }
        return index.data(Qt::ForegroundRole).value<QColor>();
    }

    /// Fills a selected cell, and draws the edges at which the selection ends.
    void paintSelection(QPainter& painter, const QRect& rect, const QModelIndex& index) const {
        painter.fillRect(rect, QColor(Theme::current().dark ? 0x1e372b : 0xd5e8e1));
        const double line = ui::hairlineWidth(painter);
        const QRectF cell = ui::snappedToPixels(painter, rect);
        const auto drawEdge = [&](int rows, int columns, const QRectF& edge) {
            const QModelIndex neighbor =
                index.siblingAtRow(index.row() + rows).siblingAtColumn(index.column() + columns);
            if (neighbor.column() > 0 && selection().isSelected(neighbor)) return;
            painter.fillRect(edge, Theme::current().brandText);
        };
        drawEdge(-1, 0, {cell.left(), cell.top(), cell.width(), line});
        drawEdge(1, 0, {cell.left(), cell.bottom() - line, cell.width(), line});
        drawEdge(0, -1, {cell.left(), cell.top(), line, cell.height()});
        drawEdge(0, 1, {cell.right() - line, cell.top(), line, cell.height()});
    }

    static void paintDot(QPainter& painter, const QRectF& dot, const QColor& color, int windClass) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        // The lightest colors would not show on the light paper.
        static constexpr std::array kOutlines{0x848a92, 0x7d948e, 0x629473};
        const auto row = static_cast<std::size_t>(windClass);
        if (Theme::current().dark || row >= kOutlines.size()) {
            painter.drawEllipse(dot);
            return;
        }
        const double line = ui::hairlineWidth(painter);
        painter.setPen(QPen(QColor(kOutlines.at(row)), line));
        painter.drawEllipse(dot.adjusted(line / 2, line / 2, -line / 2, -line / 2));
    }
};

}  // namespace

WindGridWidget::WindGridWidget(QWidget* parent) : QTableWidget(parent) {
    setAccessibleName(QStringLiteral("Distribuzione Vento (Giorni/Mese)"));
    setFrameShape(QFrame::NoFrame);
    setFont(ui::font(FontStyle::kCaption2));
    setPaper();
    setShowGrid(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setItemDelegate(new CellDelegate(this));

    // Set before there are rows and columns: the default headers would measure those in bold
    // faces that are loaded for nothing else.
    setHorizontalHeader(new Header(this));
    verticalHeader()->hide();
    setRowCount(kRows);
    setColumnCount(kColumns);
    QStringList header(base::toQString(WindTableView::kCorner));
    for (const std::string_view month : CalculationEngine::months) header << base::toQString(month);
    setHorizontalHeaderLabels(header);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(lineHeight(font()) + kRowGap);

    // The headings of what is selected change, too.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        viewport()->update();
        horizontalHeader()->viewport()->update();
    });

    QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);

    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column)
            setItem(row, column, new QTableWidgetItem);
        const auto windClass = static_cast<std::size_t>(row);
        item(row, 0)->setText(base::toQString(WindRange::labels[windClass]));
        item(row, 0)->setForeground(Theme::current().text);
        item(row, 0)->setData(Qt::DecorationRole, graphics::toQColor(WindRange::colors[windClass]));
    }
}

std::optional<WindTableView::Block> WindGridWidget::selectedBlock() const {
    const QModelIndexList cells = selectedIndexes();
    if (cells.isEmpty()) return std::nullopt;
    const auto [first, last] = std::minmax_element(cells.begin(), cells.end());
    const auto [left, right] = std::ranges::minmax(cells, {}, &QModelIndex::column);
    return WindTableView::Block{
        .firstClass = static_cast<std::size_t>(first->row()),
        .lastClass = static_cast<std::size_t>(last->row()),
        .firstMonth = static_cast<std::size_t>(std::max(left.column(), 1) - 1),
        .lastMonth = static_cast<std::size_t>(right.column() - 1)};
}

QItemSelectionModel::SelectionFlags WindGridWidget::selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const {
    const auto command = QTableWidget::selectionCommand(index, event);
    const bool isHeading = index.isValid() && index.column() == 0;
    return isHeading ? command | QItemSelectionModel::Rows : command;
}

void WindGridWidget::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        emit copyRequested();
    } else if (event->key() == Qt::Key_Escape && selectedBlock()) {
        clearSelection();
    } else {
        QTableWidget::keyPressEvent(event);
    }
}

void WindGridWidget::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copy =
        menu->addAction(QStringLiteral("Copia selezione"), this, &WindGridWidget::copyRequested);
    copy->setShortcut(QKeySequence::Copy);
    copy->setEnabled(selectedBlock().has_value());
    QAction* all =
        menu->addAction(QStringLiteral("Seleziona tutto"), this, [this] { selectAll(); });
    all->setShortcut(QKeySequence::SelectAll);
    for (QAction* action : {copy, all}) action->setShortcutVisibleInContextMenu(true);
    menu->popup(event->globalPos());
}

void WindGridWidget::setPaper() {
    // Scroll bars need an opaque paper: the tint over the window.
    const QColor& tint = Theme::current().tablePaper;
    const QColor& window = Theme::current().window;
    const auto mixed = [&](float tinted, float plain) {
        return plain + (tinted - plain) * tint.alphaF();
    };
    QPalette colors = palette();
    colors.setColor(QPalette::Base, QColor::fromRgbF(mixed(tint.redF(), window.redF()),
                                                     mixed(tint.greenF(), window.greenF()),
                                                     mixed(tint.blueF(), window.blueF())));
    setPalette(colors);
    viewport()->setAutoFillBackground(false);
}

void WindGridWidget::setTable(const WindTableView& table) {
    for (int row = 0; row < kRows; ++row) {
        for (int column = 1; column < kColumns; ++column) {
            const std::int64_t days =
                table.days(static_cast<std::size_t>(row), static_cast<std::size_t>(column - 1));
            item(row, column)->setText(QString::number(days));
            item(row, column)
                ->setForeground(days == 0 ? Theme::current().tertiaryText : Theme::current().text);
        }
    }
    fitColumns();
}

void WindGridWidget::fitColumns() {
    const QFontMetricsF header(horizontalHeader()->font());
    const QFontMetricsF cells(font());
    for (int column = 0; column < kColumns; ++column) {
        int width = advance(header, horizontalHeaderItem(column)->text());
        for (int row = 0; row < kRows; ++row) {
            const int dot = column == 0 ? kDot + kDotGap : 0;
            width = std::max(width, dot + advance(cells, item(row, column)->text()));
        }
        setColumnWidth(column, width + (column + 1 < kColumns ? kColumnGap : 2 * kInset));
    }
    updateGeometry();
}

QSize WindGridWidget::contentSize() const {
    return {horizontalHeader()->length(),
            horizontalHeader()->sizeHint().height() + verticalHeader()->length()};
}

QSize WindGridWidget::sizeHint() const { return contentSize(); }

QSize WindGridWidget::minimumSizeHint() const { return {columnWidth(0), contentSize().height()}; }

int WindGridWidget::heightForWidth(int width) const {
    const bool scrolls = width < contentSize().width();
    return contentSize().height() + (scrolls ? horizontalScrollBar()->sizeHint().height() : 0);
}

}  // namespace kalvo::charts
