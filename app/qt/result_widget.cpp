#include "app/qt/result_widget.h"

#include <QHBoxLayout>
#include <QTimerEvent>
#include <QVBoxLayout>

#include "app/qt/station_text.h"
#include "base/qt/qstring.h"
#include "base/shown_text.h"
#include "ui/announcement.h"
#include "ui/divider.h"
#include "ui/icons.h"
#include "ui/lazy_tool_tip.h"
#include "ui/paint.h"
#include "ui/spinner.h"
#include "ui/theme.h"

namespace kalvo::app {

namespace {

using ui::FontStyle;
using ui::FontWeight;
using ui::TextRole;

constexpr int kDetailLines = 2;
constexpr int kResultLines = 3;

QVBoxLayout* makeColumn(QWidget* page, int spacing) {
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

/// Keeps the height of so many lines, so that what stands below stays where it is when the text
/// comes.
void reserveLines(QLabel& label, int lines) {
    label.setMinimumHeight(lines * label.fontMetrics().lineSpacing() + 2 * label.margin());
}

/// No line ends within a figure and its unit.
QString withNonBreakingUnits(QString text) {
    return text.replace(QStringLiteral(" kWh/anno"), QStringLiteral("\u00a0kWh/\u2060anno"));
}

void showText(QLabel& label, const std::string& text) {
    const QString read = base::toQString(text);
    if (label.accessibleName() == read) return;
    // Else the longest word, which may be a place's country code, would widen the column.
    label.setText(withNonBreakingUnits(base::toQString(base::withLineBreakOpportunities(text))));
    label.setAccessibleName(read);
    ui::announce(label);
}

}  // namespace

ResultWidget::ResultWidget(const ContentView& state, QWidget* parent)
    : QWidget(parent),
      state_(state),
      pages_(new QStackedWidget),
      texts_(makeTexts()),
      progress_(makeProgress()) {
    pages_->addWidget(texts_);
    pages_->addWidget(progress_);
    QVBoxLayout* column = makeColumn(this, 8);
    column->addWidget(ui::makeLabel(QStringLiteral("Risultato Calcolo"), FontStyle::kHeadline));
    column->addWidget(pages_);
    column->addLayout(makeButtons());
}

QWidget* ResultWidget::makeTexts() {
    const ui::Theme& theme = ui::Theme::current();
    auto* page = new QWidget;
    QVBoxLayout* column = makeColumn(page, 6);
    details_ = new ui::SelectableLabel;
    ui::setTextStyle(*details_, FontStyle::kCaption, FontWeight::kRegular, TextRole::kSecondary);
    details_->setWordWrap(true);
    ui::setLazyToolTip(*details_, [this] {
        return state_.shownResult ? stationText(state_, state_.shownResult->place) : QString();
    });
    result_ = new ui::TintedLabel(ui::font(FontStyle::kBody, FontWeight::kBold), theme.windBox);
    solarResult_ =
        new ui::TintedLabel(ui::font(FontStyle::kSubheadline, FontWeight::kBold), theme.solarBox);
    reserveLines(*details_, kDetailLines);
    reserveLines(*result_, kResultLines);
    reserveLines(*solarResult_, kResultLines);
    column->addWidget(details_);
    column->addWidget(result_);
    column->addWidget(new ui::Divider);
    column->addWidget(ui::makeLabel(QStringLiteral("Stima Solare FTV"), FontStyle::kCaption,
                                    FontWeight::kBold, TextRole::kOrange));
    column->addWidget(solarResult_);
    return page;
}

QWidget* ResultWidget::makeProgress() {
    const QString text = QStringLiteral("Scaricamento dati Meteoblue...");
    auto* page = new QWidget;
    QVBoxLayout* column = makeColumn(page, 0);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    column->addLayout(row);
    column->addStretch();
    row->addWidget(new ui::Spinner(text));
    row->addWidget(
        ui::makeLabel(text, FontStyle::kCaption, FontWeight::kRegular, TextRole::kOrange));
    row->addStretch();
    return page;
}

QLayout* ResultWidget::makeButtons() {
    copy_ = new QPushButton(ui::symbolIcon(QStringLiteral("doc.on.doc")),
                            QStringLiteral("Copia &Risultato"));
    auto* calculate =
        new QPushButton(ui::symbolIcon(QStringLiteral("equal.circle")), QStringLiteral("C&alcola"));
    calculate->setProperty("prominent", true);
    auto* information = new QPushButton(ui::symbolIcon(QStringLiteral("info.circle")), QString());
    information->setAccessibleName(QStringLiteral("Informazioni"));
    information->setToolTip(QStringLiteral("Informazioni (F1)"));
    connect(copy_, &QPushButton::clicked, this, &ResultWidget::copyRequested);
    connect(calculate, &QPushButton::clicked, this, &ResultWidget::calculationRequested);
    connect(information, &QPushButton::clicked, this, &ResultWidget::informationRequested);

    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (QPushButton* button : {copy_, calculate, information}) row->addWidget(button);
    row->addStretch();
    return row;
}

void ResultWidget::showState() {
    pages_->setCurrentWidget(state_.isFetchingOnline ? progress_ : texts_);
    showText(*details_, base::shownText(state_.detailsText));
    result_->setWarning(state_.showsMessage());
    showText(*result_, state_.resultText);
    showText(*solarResult_, state_.pvResultText);
}

void ResultWidget::acknowledgeCopy() {
    constexpr int kBelow = 6;  // points
    constexpr int kAbove = 4;
    constexpr int kMilliseconds = 2000;
    if (copied_ == nullptr) {
        copied_ = new ui::Notice(ui::Notice::Kind::kConfirmation, window());
        copied_->setText(QStringLiteral("Risultato copiato"));
        copied_->resize(copied_->sizeHint());
    }
    const QPoint button = copy_->mapTo(window(), QPoint());
    int top = button.y() + ui::kControlHeight + kBelow;
    if (top + copied_->height() > window()->height()) {
        top = button.y() - kAbove - copied_->height();
    }
    copied_->move(button.x(), top);
    copied_->raise();
    copied_->show();
    copiedTimer_.start(kMilliseconds, Qt::PreciseTimer, this);
}

void ResultWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != copiedTimer_.timerId()) return QWidget::timerEvent(event);
    copiedTimer_.stop();
    copied_->hide();
}

}  // namespace kalvo::app
