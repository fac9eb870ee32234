#pragma once

#include <optional>

#include <QImage>
#include <QLineF>
#include <QWidget>

#include "geo/map_scene.h"
#include "geo/map_view.h"
#include "geo/qt/cached_picture.h"
#include "geo/qt/map_buttons.h"

class QHelpEvent;
class QNativeGestureEvent;
class QTouchEvent;

namespace kalvo::geo {

/// Shows a `MapView`: zoomed with the wheel (about the pointer), by pinching and with + and -
/// (about the center), moved by dragging and with the arrow keys, seen as a whole again with Home
/// or a double click, whose second press can also begin a drag. What is under the pointer is
/// outlined, and told once it rests. The wheel zooms with Ctrl, too; where a map stands on a page
/// that scrolls, the page may keep the plain wheel for itself. A map that is minimized comes back
/// as it was, one that was hidden as a whole.
///
/// The finished picture is kept: a map that has not changed is only copied to the screen, and one
/// that moves is drawn only where it comes into sight. The outline, the legend and the buttons lie
/// over it.
class MapWidget final : public QWidget {
    Q_OBJECT

 public:
    explicit MapWidget(QWidget* parent = nullptr);

    /// Shows another content. Zoom and pan stay as the user left them, except that another type of
    /// map starts with the whole of it. Nothing happens when nothing changes.
    void setContent(const MapContent& content);

    [[nodiscard]] const MapView& view() const { return view_; }

    /// Returns the map with its legend as a picture for a display of a scale.
    [[nodiscard]] QImage picture(double scale) const;

    [[nodiscard]] QSize sizeHint() const override;

    /// Where the first two fingers on a touch screen are, or the only one twice.
    struct Fingers {
        QPointF one;
        QPointF other;
        [[nodiscard]] QPointF center() const { return (one + other) / 2; }
        [[nodiscard]] double length() const { return QLineF(one, other).length(); }
    };

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

 private:
    [[nodiscard]] graphics::Size viewSize() const;
    [[nodiscard]] const MapScene& scene();
    /// Brings the kept picture up to date, drawing as little of it as possible.
    void updatePicture();
    /// Moves the kept picture, if that is all it needs; returns whether it is.
    [[nodiscard]] bool scrollPicture();
    void drawPicture();
    void drawPart(QPainter& painter, const MapScene& scene, const QRectF& part) const;
    void invalidatePicture();
    /// Lets `gesture` change zoom and pan, and shows the map anew if it did.
    template <class Gesture>
    void apply(Gesture gesture);
    void describe();
    void showWholeMap();
    void zoomAboutCenter(double factor);
    void setPointer(std::optional<QPointF> pointer);
    /// Outlines what is under the pointer now.
    void updateHover();
    void paintLegend(QPainter& painter);
    void showToolTip(const QHelpEvent& event);
    bool pinch(const QNativeGestureEvent& event);
    void touch(const QTouchEvent& event);

    MapView view_;
    std::optional<MapScene> scene_;
    CachedPicture picture_;
    std::optional<MapGestures> cachedGestures_;  // the zoom and pan that it shows, if any
    double nativeMagnification_ = 1;
    QPointF pressedAt_;
    Fingers touchStart_;
    std::optional<QPointF> pointer_;      // nothing while it is elsewhere
    std::optional<std::size_t> hovered_;  // the outlined feature
    CachedPicture legend_;
    MapButtons* buttons_;
};

}  // namespace kalvo::geo
