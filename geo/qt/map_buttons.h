#pragma once

#include <array>

#include <QAbstractButton>
#include <QWidget>

namespace kalvo::geo {

/// A button of the card: its symbol on the light paper that maps have in both appearances.
class MapButton final : public QAbstractButton {
    Q_OBJECT

 public:
    /// `name` is told by screen readers, with the key in parentheses by the tooltip.
    MapButton(QString symbol, const QString& name, const QString& key, QWidget* parent);

    /// Shows whether pressing it changes anything. It is never disabled, since its presses would
    /// then go to the map below.
    void setEffective(bool isEffective);

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    void showToolTip();

    QString symbol_;
    bool isEffective_ = true;
};

/// The card at the bottom right of a map with the buttons that zoom in, zoom out and show the
/// whole map. No Tab stop: the map's own keys do the same.
class MapButtons final : public QWidget {
    Q_OBJECT

 public:
    explicit MapButtons(QWidget* map);

    /// Takes the place of the card in a map of a size.
    void placeIn(const QSize& map);
    void setEffective(bool canZoomIn, bool canZoomOut);

 signals:
    void zoomInPressed();
    void zoomOutPressed();
    void wholeMapPressed();
    /// The pointer has come from the map below.
    void entered();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;

 private:
    std::array<MapButton*, 3> buttons_;
};

}  // namespace kalvo::geo
