#include "app/qt/detail_column.h"

#include <array>

#include <QTimerEvent>
#include <QWheelEvent>

#include "app/report_content.h"
#include "base/qt/qstring.h"
#include "base/shown_text.h"
#include "report/qt/page_painter.h"
#include "ui/divider.h"

namespace kalvo::app {

DetailColumn::DetailColumn(ContentView& state, const Services& services, QWidget* parent)
    : ScrollPage(parent),
      state_(state),
      map_(new ui::SegmentedControl(
          QStringLiteral("Mappa"),
          {QStringLiteral("Mappa Regioni"), QStringLiteral("Mappa Province"),
           QStringLiteral("Mappa Vento")})),
      area_(new MapArea(state, services.parser)),
      analysis_(new ui::SegmentedControl(QStringLiteral("Analisi Dettagliata"),
                                         {QStringLiteral("Analisi Impianto Eolico"),
                                          QStringLiteral("Analisi Impianto Solare FV")})),
      notice_(new ui::Notice(ui::Notice::Kind::kWarning)),
      details_(new charts::DetailsNotebookWidget(services.clipboard)) {
    auto* page = new QWidget;
    // While it is empty: taking in a page measures it.
    setWidget(page);
    layout_ = new DetailLayout(*this, page);
    constexpr QMargins kMapPadding(16, 16, 16, 16);  // points
    constexpr QMargins kAnalysisPadding(8, 8, 8, 8);
    layout_->addFixed(map_, kMapPadding);
    layout_->addMap(area_);
    layout_->addFixed(new ui::Divider, {});
    layout_->addFixed(analysis_, kAnalysisPadding);
    constexpr QMargins kNoticePadding(8, 0, 8, 0);
    layout_->addFixed(notice_, kNoticePadding);
    layout_->addDetails(details_);
    showNotice();
    for (int i = 0; i < area_->count(); ++i) area_->widget(i)->installEventFilter(this);

    for (auto* chart : details_->findChildren<charts::ChartWidget*>()) {
        chart->makePicture = [this, services](const charts::Chart& shown, double scale) {
            return picture(shown, services, scale);
        };
    }
    connect(map_, &ui::SegmentedControl::indexChosen, this, [this](int index) {
        state_.activeTab = index;
        emit edited();
    });
    connect(analysis_, &ui::SegmentedControl::indexChosen, this, [this](int index) {
        state_.activeDetailsTab = index;
        emit edited();
    });
    connect(area_, &MapArea::edited, this, &DetailColumn::edited);
}

QImage DetailColumn::picture(const charts::Chart& chart,
                             const Services& services,
                             double scale) const {
    if (!state_.shownResult) return {};
    static constexpr std::array kKinds{report::ChartKind::kWind, report::ChartKind::kRose,
                                       report::ChartKind::kSky};
    report::loadTabularFonts(services.bundle);
    return report::chartPicture(makeReport(state_, services, std::chrono::system_clock::now()),
                                kKinds.at(chart.index()), scale);
}

void DetailColumn::showState() {
    map_->setIndex(state_.activeTab);
    map_->setNote(state_.selectedCountry == kOnlineCountry
                      ? QStringLiteral("Vale per Italia, San Marino e Città del Vaticano")
                      : QString());
    area_->showState();
    analysis_->setIndex(state_.activeDetailsTab);
    details_->setView({.activeDetailsTab = state_.activeDetailsTab,
                       .currentDistribution = state_.currentDistribution,
                       .currentRoseData = state_.currentRoseData,
                       .currentSolarData = state_.currentSolarData,
                       .pvDetailsText = state_.pvDetailsText,
                       .pvResultText = state_.pvResultText});
    followNotice();
}

void DetailColumn::followNotice() {
    constexpr int kDelay = 250;  // milliseconds
    const bool isDue = !state_.notice().empty();
    if (isDue && notice_->isHidden()) {
        if (!noticeTimer_.isActive()) noticeTimer_.start(kDelay, this);
    } else {
        noticeTimer_.stop();
        showNotice();
    }
}

void DetailColumn::showNotice() {
    const QString text = base::toQString(base::shownText(state_.notice()));
    if (!text.isEmpty()) notice_->setText(text);
    notice_->setVisible(!text.isEmpty());
}

void DetailColumn::timerEvent(QTimerEvent* event) {
    if (event->timerId() != noticeTimer_.timerId()) return ScrollPage::timerEvent(event);
    noticeTimer_.stop();
    showNotice();
}

bool DetailColumn::eventFilter(QObject* object, QEvent* event) {
    // A scroll area watches its bars and its page, too.
    const bool isMap = object->parent() == area_;
    if (isMap && event->type() == QEvent::Wheel && layout_->isOnePage()) {
        const auto& wheel = dynamic_cast<const QWheelEvent&>(*event);
        if (!(wheel.modifiers() & Qt::ControlModifier)) {
            event->ignore();
            return true;
        }
    }
    return ScrollPage::eventFilter(object, event);
}

void DetailColumn::resizeEvent(QResizeEvent* event) {
    details_->setAvailableWidth(width());
    ScrollPage::resizeEvent(event);
}

}  // namespace kalvo::app
