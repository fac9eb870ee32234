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
#include "geo/qt/cached_picture.h"
#include "graphics/qt/qt_canvas.h"

namespace kalvo::geo {

/// Shows a `GlobeView` and forwards its events. It turns by itself while it is on the screen,
/// is turned by dragging and with the arrow keys, stopped and started with the space bar, and
/// tapped with the pointer or, at its center, with the return key. The second press of a double
/// click is no other tap, but can begin a drag. The wheel is left to whoever stands around it.
/// Hidden or minimized it does nothing at all; one that was hidden turns again when it is shown,
/// one that was minimized goes on as it was.
class GlobeWidget final : public QWidget {
    Q_OBJECT

 public:
    using CountryRings = std::function<const std::vector<engine::CountryRing>&()>;

    /// The rings are asked for once the globe has been painted as a bare disc, so that its window
    /// need not wait for its lines, and again the next time it is shown if there were none.
    explicit GlobeWidget(CountryRings countryRings, QWidget* parent = nullptr);

    /// Told the center whenever the globe has moved by itself or by the user's hand.
    std::function<void(LatLonRadians)> onCenterChanged;
    /// Told the place of a tap.
    std::function<void(engine::LatLon)> onGlobeTap;

    /// Turns the globe to a center; `onCenterChanged` is not told.
    void setCenter(LatLonRadians center);
    /// Marks a place or none; its name stands above the mark.
    void setTarget(std::optional<engine::LatLon> place, const std::optional<std::string>& name);

    [[nodiscard]] LatLonRadians center() const { return view_.center(); }

    /// Returns the globe without its hint as a picture for a display of a scale.
    [[nodiscard]] QImage picture(double scale);

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
    void contextMenuEvent(QContextMenuEvent* event) override;

 private:
    /// What the picture depends on that stays while the globe turns about its axis.
    struct BackgroundContent {
        graphics::Size viewSize;
        double centerLat;  // radians
        friend bool operator==(const BackgroundContent&, const BackgroundContent&) = default;
    };

    [[nodiscard]] graphics::Size viewSize() const;
    void makeScene();
    void describe();
    void measureTexts();
    /// Returns what the disc and its rim fill.
    [[nodiscard]] QRect discBounds() const;
    /// Returns what may change while the globe turns.
    [[nodiscard]] QRect dirtyRect() const;
    /// Brings the kept background up to date, at so many device pixels a point.
    void updateBackground(double scale);
    void press(const QMouseEvent& event, DragRecognizer::Press kind);
    void runTimer();
    /// Tells and paints the center that the globe has turned to.
    void centerMoved();
    void setFocusRing(bool shown);

    CountryRings countryRings_;
    GlobeScene scene_{};
    bool sceneDirty_ = true;  // made anew after the next painting
    bool hasCountries_ = false;
    GlobeView view_;
    DragRecognizer pointer_;
    QBasicTimer timer_;
    CachedPicture background_;
    std::optional<BackgroundContent> backgroundContent_;  // what it shows, if anything
    graphics::FrameCache frameCache_;
    graphics::Size hintSize_{};
    graphics::Size labelSize_{};
    bool hasFocusRing_ = false;
    bool ringAwaitsWindow_ = false;
};

}  // namespace kalvo::geo
