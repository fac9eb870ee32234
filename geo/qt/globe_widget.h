#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QBasicTimer>
#include <QImage>
#include <QWidget>

#include "engine/country_ring.h"
#include "geo/drag_recognizer.h"
#include "geo/globe_scene.h"
#include "geo/globe_view.h"
#include "graphics/qt/thin_line_renderer.h"

namespace kalvo::geo {

/// Shows a `GlobeView` and forwards its events. It turns by itself while it is on the screen,
/// is turned by dragging and with the arrow keys, stopped and started with the space bar, and
/// tapped with the pointer or, at its center, with the return key. Hidden or minimized it does
/// nothing at all; shown anew it turns again.
class GlobeWidget final : public QWidget {
 public:
    using CountryRings = std::function<const std::vector<engine::CountryRing>&()>;

    /// The rings are asked for once the globe has been painted as a bare disc, so that its window
    /// need not wait for its lines, and again the next time it is shown if there were none.
    explicit GlobeWidget(CountryRings countryRings, QWidget* parent = nullptr);

    /// Told the center, in radians, whenever the globe has moved by itself or by the user's hand.
    std::function<void(double lat, double lon)> onCenterChanged;
    /// Told the place of a tap, in degrees.
    std::function<void(double lat, double lon)> onGlobeTap;

    /// Turns the globe to a center in radians; `onCenterChanged` is not told.
    void setCenter(double lat, double lon);
    /// Marks a place, in degrees, or none.
    void setTarget(std::optional<double> lat,
                   std::optional<double> lon,
                   const std::optional<std::string>& name);

    [[nodiscard]] double centerLat() const { return view_.centerLat; }
    [[nodiscard]] double centerLon() const { return view_.centerLon; }

    [[nodiscard]] QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    /// The part of the picture that stays as it is while the globe turns about its axis, finished.
    struct Ground {
        struct Key {
            graphics::Size viewSize;
            double scale;
            double centerLat;
            friend bool operator==(const Key&, const Key&) = default;
        };
        std::optional<Key> key;
        QImage picture;
        QPointF topLeft;
    };

    [[nodiscard]] graphics::Size viewSize() const;
    void makeScene();
    void describe();
    void measureTexts();
    /// What the disc and its rim fill, and what may change while the globe turns.
    [[nodiscard]] QRect discBounds() const;
    [[nodiscard]] QRect dirtyRect() const;
    /// Draws the ground anew if it is not that of the present view, at so many pixels a point.
    void keepBackground(double scale);
    void press(const QMouseEvent& event, DragRecognizer::Press kind);
    void runTimer();
    /// After the globe has turned: tells the new center and paints it.
    void centerMoved();
    void setFocusRing(bool shown);

    CountryRings countryRings_;
    GlobeScene scene_{};
    bool sceneDirty_ = true;  // after the next painting
    bool hasCountries_ = false;
    GlobeView view_;
    DragRecognizer pointer_;
    QBasicTimer timer_;
    Ground ground_;
    graphics::ThinLineRenderer thinLineRenderer_;
    graphics::Size hintSize_{};
    graphics::Size labelSize_{};
    bool hasFocusRing_ = false;
    bool ringAwaitsWindow_ = false;
};

}  // namespace kalvo::geo
