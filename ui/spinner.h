#pragma once

#include <QBasicTimer>
#include <QProgressBar>

namespace kalvo::ui {

/// The turning sign of work of unknown length; a busy progress bar to screen readers. It costs
/// nothing while it is hidden.
class Spinner final : public QProgressBar {
    Q_OBJECT

 public:
    explicit Spinner(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

 private:
    QBasicTimer timer_;
    int step_ = 0;
};

}  // namespace kalvo::ui
