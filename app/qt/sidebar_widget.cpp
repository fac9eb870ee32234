#include "app/qt/sidebar_widget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>

#include "app/qt/station_text.h"
#include "base/qt/qstring.h"
#include "ui/announcement.h"
#include "ui/divider.h"
#include "ui/elided_label.h"
#include "ui/icons.h"
#include "ui/lazy_tool_tip.h"
#include "ui/theme.h"

namespace kalvo::app {

namespace {

using ui::FontStyle;
using ui::FontWeight;
using ui::TextRole;

constexpr int kPadding = 16;  // points
constexpr int kSpacing = 16;
constexpr int kGroupSpacing = 6;
constexpr int kHeaderBottom = 12;
constexpr int kPreferredWidth = 348;
constexpr int kLongestEntry = 500;  // UTF-16 code units

/// The title above a control, which names the control for screen readers and leads to it with its
/// mnemonic.
QLabel* makeTitle(const QString& title, QWidget* control = nullptr) {
    QLabel* label =
        ui::makeLabel(title, FontStyle::kCaption, FontWeight::kBold, TextRole::kSecondary);
    if (control != nullptr) label->setBuddy(control);
    return label;
}

QVBoxLayout* makeGroup() {
    auto* group = new QVBoxLayout;
    group->setSpacing(kGroupSpacing);
    return group;
}

void setUpField(QLineEdit& field, const QString& placeholder) {
    field.setMaxLength(kLongestEntry);
    field.setPlaceholderText(placeholder);
}

QLabel* makeAttribution() {
    auto* notice = new ui::ElidedLabel(
        QStringLiteral("© Kalvo · Meteoblue · OpenStreetMap · ISTAT · GeoNames"));
    ui::setTextStyle(*notice, FontStyle::kCaption2, FontWeight::kRegular, TextRole::kTertiary);
    notice->setNote(QStringLiteral(
        "Stime indicative, non vincolanti.\nDati: meteoblue, © i contributori di OpenStreetMap, "
        "ISTAT (CC BY 3.0 IT), © GeoNames (CC BY 4.0)."));
    return notice;
}

void showText(QLineEdit& field, const std::string& value) {
    // A field takes no more: with the whole of a longer text it would be filled again every time.
    const QString shown = base::toQString(value).left(field.maxLength());
    if (field.text() != shown) field.setText(shown);
}

}  // namespace

SidebarWidget::SidebarWidget(ContentView& state, QWidget* parent)
    : ScrollPage(parent),
      state_(state),
      page_(new QWidget),
      column_(new QVBoxLayout(page_)),
      result_(new ResultWidget(state)) {
    QPalette colors = palette();
    colors.setColor(QPalette::Window, ui::Theme::current().sidebar);
    setPalette(colors);

    // While it is empty: taking in a page measures it.
    setWidget(page_);
    column_->setSpacing(kSpacing);
    column_->addLayout(makeHeader());
    column_->addSpacing(kHeaderBottom);
    column_->addWidget(new ui::Divider);
    column_->addLayout(makeCountryGroup());
    column_->addLayout(makeSourceGroup());
    column_->addLayout(makeTurbineGroup());
    column_->addLayout(makeQuantityGroup());
    column_->addLayout(makeSearchGroup());
    column_->addWidget(new ui::Divider);
    column_->addWidget(result_);
    column_->addStretch(1);
    column_->addWidget(makeAttribution());
    connectControls();
    showState();
}

QLayout* SidebarWidget::makeHeader() {
    auto* logo = new ui::ImageView(QSize(44, 44), ui::ImageView::Scaling::kFit, 0);
    if (!logo->setImage(state_.loadLogoImage())) {
        logo->setSymbol(QStringLiteral("wind.snow"), 32);
    }
    auto* titles = new QVBoxLayout;
    titles->setSpacing(2);
    titles->addStretch();
    titles->addWidget(ui::makeLabel(QStringLiteral("Kalvo WIND & SOLAR"), FontStyle::kHeadline,
                                    FontWeight::kRegular, TextRole::kBrand));
    titles->addWidget(ui::makeLabel(QStringLiteral("Calcolo Produzione Annua"),
                                    FontStyle::kSubheadline, FontWeight::kBold));
    titles->addStretch();
    auto* header = new QHBoxLayout;
    header->setSpacing(11);
    header->addWidget(logo);
    header->addLayout(titles, 1);
    return header;
}

QLayout* SidebarWidget::makeCountryGroup() {
    country_ = new ui::ComboBox;
    for (const std::string& country : state_.countries) country_->addItem(base::toQString(country));
    flag_ = new ui::ImageView(QSize(24, 16), ui::ImageView::Scaling::kFill, 2);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(country_);
    row->addWidget(flag_);
    QVBoxLayout* group = makeGroup();
    group->addWidget(makeTitle(QStringLiteral("&Nazione"), country_));
    group->addLayout(row);
    return group;
}

QLayout* SidebarWidget::makeSourceGroup() {
    offline_ = new QPushButton(QStringLiteral("&Offline (Stime)"));
    online_ = new QPushButton(QStringLiteral("Online (&Meteoblue)"));
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    for (QPushButton* toggle : {offline_, online_}) {
        toggle->setCheckable(true);
        toggle->setAccessibleDescription(QStringLiteral("Sorgente Dati"));
        row->addWidget(toggle);
    }
    row->addStretch();
    QVBoxLayout* group = makeGroup();
    group->addWidget(makeTitle(QStringLiteral("Sorgente Dati")));
    group->addLayout(row);
    return group;
}

QLayout* SidebarWidget::makeTurbineGroup() {
    turbine_ = new ui::SegmentedControl(
        QStringLiteral("Tipo Turbina"),
        {QStringLiteral("1 kW"), QStringLiteral("2 kW"), QStringLiteral("3 kW")});
    QVBoxLayout* group = makeGroup();
    group->addWidget(makeTitle(QStringLiteral("&Tipo Turbina"), turbine_));
    group->addWidget(turbine_);
    return group;
}

QLayout* SidebarWidget::makeQuantityGroup() {
    quantity_ = new ui::NotedField;
    setUpField(*quantity_, QStringLiteral("Quantità"));
    QVBoxLayout* group = makeGroup();
    group->addWidget(makeTitle(QStringLiteral("&Quantità Turbine"), quantity_));
    group->addWidget(quantity_);
    return group;
}

QLayout* SidebarWidget::makeSearchGroup() {
    search_ = new ui::SearchField;
    setUpField(*search_, QStringLiteral("Digita comune o città..."));
    searchButton_ = new QPushButton(ui::symbolIcon(QStringLiteral("magnifyingglass")),
                                    QStringLiteral("Cerca Online &su Meteoblue"));
    searchButton_->setProperty("prominent", true);
    place_ = new ui::ComboBox;
    places_ = new PlaceListModel(this);
    place_->setModel(places_);
    place_->longestRows = [this] { return places_->longestRows(); };
    ui::setLazyToolTip(*place_, [this] {
        const engine::Location* chosen = state_.selectedPlace();
        QStringList lines{place_->elidedText(), chosen ? stationText(state_, *chosen) : QString()};
        lines.removeAll(QString());
        return lines.join(u'\n');
    });
    QVBoxLayout* group = makeGroup();
    group->addWidget(makeTitle(QStringLiteral("&Cerca Località"), search_));
    group->addWidget(search_);
    group->addWidget(searchButton_);
    group->addWidget(makeTitle(QStringLiteral("&Località Selezionata"), place_));
    group->addWidget(place_);
    return group;
}

void SidebarWidget::connectControls() {
    // Only what the user does is listened to, so showing the state edits nothing.
    connect(country_, &QComboBox::activated, this, [this](int row) {
        state_.selectedCountry = state_.countries[static_cast<std::size_t>(row)];
        emit edited();
    });
    connect(offline_, &QPushButton::clicked, this, [this](bool on) { chooseSource(false, on); });
    connect(online_, &QPushButton::clicked, this, [this](bool on) { chooseSource(true, on); });
    connect(turbine_, &ui::SegmentedControl::indexChosen, this, [this](int index) {
        state_.selectedTurbineKW = index + 1;
        emit edited();
    });
    connect(quantity_, &QLineEdit::textEdited, this, [this](const QString& typed) {
        state_.quantityString = typed.toStdString();
        emit edited();
    });
    connect(search_, &QLineEdit::textEdited, this, [this](const QString& typed) {
        state_.searchText = typed.toStdString();
        emit edited();
    });
    connect(search_, &QLineEdit::returnPressed, this, [this] {
        if (state_.selectedCountry == kOnlineCountry) searchOnline();
    });
    connect(search_, &ui::SearchField::listRequested, this, &SidebarWidget::openPlaces);
    connect(searchButton_, &QPushButton::clicked, this, [this] { searchOnline(); });
    connect(place_, &QComboBox::activated, this, [this](int row) {
        state_.selectedLocationLabel = places_->name(row);
        emit edited();
    });
    connect(result_, &ResultWidget::copyRequested, this, [this] {
        state_.copyResult();
        result_->acknowledgeCopy();
    });
    connect(result_, &ResultWidget::calculationRequested, this, [this] {
        state_.calculate();
        emit edited();
    });
    connect(result_, &ResultWidget::informationRequested, this, [this] {
        state_.showInfoSheet = true;
        emit edited();
    });
}

void SidebarWidget::chooseSource(bool isOnline, bool isSwitchedOn) {
    // A toggle that was clicked while on has switched itself off: showing the state undoes that.
    if (isSwitchedOn) {
        state_.isOnlineMode = isOnline;
        state_.calculate();
    }
    emit edited();
}

void SidebarWidget::searchOnline() {
    state_.performOnlineSearch();
    emit edited();
}

void SidebarWidget::showState() {
    const auto country =
        std::find(state_.countries.begin(), state_.countries.end(), state_.selectedCountry);
    country_->setCurrentIndex(static_cast<int>(country - state_.countries.begin()));
    showFlag();
    offline_->setChecked(!state_.isOnlineMode);
    online_->setChecked(state_.isOnlineMode);
    turbine_->setIndex(state_.selectedTurbineKW - 1);
    showText(*quantity_, state_.quantityString);
    quantity_->setNote(state_.quantityCountsAsOne() ? QStringLiteral("Conta come 1") : QString());
    showText(*search_, state_.searchText);
    searchButton_->setVisible(state_.selectedCountry == kOnlineCountry);
    showPlaces();
    result_->showState();
}

void SidebarWidget::showPlaces() {
    // Of a list that is open, the rows and the choice would be those of the names before.
    if (places_->setNames(state_.filteredLocationNames)) place_->hidePopup();
    place_->setCurrentIndex(places_->rowOf(state_.selectedLocationLabel));
    const QString missing =
        state_.searchFoundNothing() ? QStringLiteral("Nessuna località trovata") : QString();
    if (missing == place_->placeholderText()) return;
    place_->setPlaceholderText(missing);
    place_->setAccessibleDescription(missing);
    if (!missing.isEmpty()) ui::announce(*place_);
}

void SidebarWidget::openPlaces() {
    if (const auto row = state_.bestMatch()) place_->openAt(static_cast<int>(*row));
}

void SidebarWidget::showFlag() {
    if (flagCountry_ == state_.selectedCountry) return;
    flagCountry_ = state_.selectedCountry;
    flag_->setVisible(flag_->setImage(state_.flagImage(state_.selectedCountry)));
}

void SidebarWidget::focusSearchField() {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
}

QSize SidebarWidget::sizeHint() const { return {kPreferredWidth, 700}; }

void SidebarWidget::resizeEvent(QResizeEvent* event) {
    fitMargins();
    ScrollPage::resizeEvent(event);
}

void SidebarWidget::fitMargins() {
    // The scroll bar stands in the margin, so that it does not push the controls aside.
    const int bar = width() - viewport()->width();
    column_->setContentsMargins(kPadding, kPadding, kPadding - bar, kPadding);
    column_->activate();
}

}  // namespace kalvo::app
