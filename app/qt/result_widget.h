#pragma once

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>

#include "app/content_view.h"

namespace kalvo::app {

/// The part of the sidebar that shows the result of the calculation, or that a download is under
/// way, above the buttons that work on it.
class ResultWidget final : public QWidget {
    Q_OBJECT

 public:
    explicit ResultWidget(QWidget* parent = nullptr);

    /// Shows the texts of the state. What has changed is announced to screen readers.
    void showState(const ContentView& state);

 signals:
    void copyRequested();
    void calculationRequested();
    void informationRequested();

 private:
    [[nodiscard]] QWidget* makeTexts();
    [[nodiscard]] QWidget* makeProgress();
    [[nodiscard]] QLayout* makeButtons() const;

    QStackedWidget* pages_;
    QWidget* texts_;
    QWidget* progress_;
    QLabel* details_;
    QLabel* result_;
    QLabel* solarResult_;
};

}  // namespace kalvo::app
