#include "charts/qt/wind_table_widget.h"

#include <chrono>

#include <QHBoxLayout>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include "base/qt/qstring.h"
#include "charts/qt/wind_grid_widget.h"
#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::charts {

namespace {

// Around the grid; the cells bring the rest of it along.
constexpr int kPadding = 8;
constexpr int kSidePadding = kPadding - WindGridWidget::kInset;

/// The tinted sheet behind the cells.
class Paper final : public QWidget {
 public:
    explicit Paper(WindGridWidget* grid) {
        auto* layout = new QVBoxLayout(this);
        // Half of a row's gap already stands below the last row.
        layout->setContentsMargins(kSidePadding, kPadding, kSidePadding, kPadding - 3);
        layout->addWidget(grid);
    }

 protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        ui::paintBox(painter, rect(), 6, ui::Theme::current().tablePaper);
    }
};

}  // namespace

WindTableWidget::WindTableWidget(base::Clipboard& clipboard, QWidget* parent)
    : QWidget(parent), clipboard_(clipboard), grid_(new WindGridWidget), button_(new QPushButton) {
    grid_->setTable(view_);
    button_->setProperty("prominent", true);
    button_->setIcon(ui::symbolIcon(QStringLiteral("doc.on.doc")));
    button_->setFont(ui::font(ui::FontStyle::kCaption));
    showNotice();
    // As wide as its longer text, so that the notice does not make it jump.
    button_->setMinimumWidth(button_->sizeHint().width());
    connect(button_, &QPushButton::clicked, this, &WindTableWidget::copy);
    connect(grid_, &WindGridWidget::copyRequested, this, &WindTableWidget::copySelection);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(new Paper(grid_), 0, Qt::AlignLeft);
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(button_);
    buttonRow->addStretch();
    layout->addLayout(buttonRow);
}

void WindTableWidget::setDistribution(engine::WindDistribution distribution) {
    if (distribution == view_.distribution) return;
    view_.distribution = std::move(distribution);
    grid_->setTable(view_);
}

void WindTableWidget::copy() {
    view_.copyToClipboard(clipboard_);
    showNotice();
    // Every press has a timer of its own: the first one to fire ends the notice.
    QTimer::singleShot(std::chrono::seconds(2), Qt::PreciseTimer, this, [this] {
        view_.copiedNotice = false;
        showNotice();
    });
}

void WindTableWidget::copySelection() {
    if (const auto block = grid_->selectedBlock()) {
        clipboard_.setString(view_.clipboardText(*block));
    }
}

void WindTableWidget::showNotice() { button_->setText(base::toQString(view_.copyButtonText())); }

}  // namespace kalvo::charts
