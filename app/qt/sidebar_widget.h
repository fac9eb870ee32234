#pragma once

#include <QPushButton>
#include <QVBoxLayout>

#include "app/content_view.h"
#include "app/qt/place_list_model.h"
#include "app/qt/result_widget.h"
#include "ui/combo_box.h"
#include "ui/image_view.h"
#include "ui/noted_field.h"
#include "ui/scroll_page.h"
#include "ui/search_field.h"
#include "ui/segmented_control.h"

namespace kalvo::app {

/// The column of controls and results. Its controls edit the fields of the state or run its
/// operations, and `edited` tells whoever redraws the screen; `showState` brings the controls to
/// what the state holds, without a signal.
class SidebarWidget final : public ui::ScrollPage {
    Q_OBJECT

 public:
    /// The state outlives the sidebar.
    explicit SidebarWidget(ContentView& state, QWidget* parent = nullptr);

    void showState();
    void focusSearchField();

    [[nodiscard]] QSize sizeHint() const override;

 signals:
    void edited();

 protected:
    void resizeEvent(QResizeEvent* event) override;

 private:
    [[nodiscard]] QLayout* makeHeader();
    [[nodiscard]] QLayout* makeCountryGroup();
    [[nodiscard]] QLayout* makeSourceGroup();
    [[nodiscard]] QLayout* makeTurbineGroup();
    [[nodiscard]] QLayout* makeQuantityGroup();
    [[nodiscard]] QLayout* makeSearchGroup();
    void connectControls();
    /// The data source after one of its toggles has been clicked.
    void chooseSource(bool isOnline, bool isSwitchedOn);
    void searchOnline();
    void showFlag();
    void showPlaces();
    /// Opens the place list on the place that the search means.
    void openPlaces();
    void fitMargins();

    ContentView& state_;
    QWidget* page_;
    QVBoxLayout* column_;
    ui::ComboBox* country_;
    ui::ImageView* flag_;
    std::optional<std::string> flagCountry_;  // whose flag is shown
    QPushButton* offline_;
    QPushButton* online_;
    ui::SegmentedControl* turbine_;
    ui::NotedField* quantity_;
    ui::SearchField* search_;
    QPushButton* searchButton_;
    ui::ComboBox* place_;
    PlaceListModel* places_;
    ResultWidget* result_;
};

}  // namespace kalvo::app
