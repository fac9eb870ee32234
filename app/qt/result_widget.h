#pragma once

#include <QBasicTimer>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>

#include "app/content_view.h"
#include "ui/notice.h"
#include "ui/tinted_label.h"

namespace kalvo::app {

/// The part of the sidebar that shows the result of the calculation, or that a download is under
/// way, above the buttons that work on it.
class ResultWidget final : public QWidget {
    Q_OBJECT

 public:
    /// The state outlives the widget.
    explicit ResultWidget(const ContentView& state, QWidget* parent = nullptr);

    /// Shows the texts of the state. What has changed is announced to screen readers.
    void showState();
    /// Tells for two seconds, over whatever stands below the button, that the result was copied.
    void acknowledgeCopy();

 signals:
    void copyRequested();
    void calculationRequested();
    void informationRequested();

 protected:
    void timerEvent(QTimerEvent* event) override;

 private:
    [[nodiscard]] QWidget* makeTexts();
    [[nodiscard]] QWidget* makeProgress();
    [[nodiscard]] QLayout* makeButtons();

    const ContentView& state_;
    QStackedWidget* pages_;
    QWidget* texts_;
    QWidget* progress_;
    ui::SelectableLabel* details_;
    ui::TintedLabel* result_;
    ui::TintedLabel* solarResult_;
    QPushButton* copy_;
    ui::Notice* copied_ = nullptr;  // once something was copied
    QBasicTimer copiedTimer_;
};

}  // namespace kalvo::app
