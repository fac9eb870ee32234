#include "geo/qt/map_widget.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineF>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QToolTip>
#include <QTouchEvent>
#include <QWheelEvent>

#include "base/qt/qstring.h"
#include "graphics/qt/conversions.h"
#include "graphics/qt/parallel_painting.h"
#include "graphics/qt/qt_canvas.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::geo {

namespace {

using graphics::Size;

constexpr double kZoomStep = 1.25;  // of one notch of the wheel and one press of a key
constexpr double kNotch = 120;      // eighths of a degree
constexpr double kArrowStep = 40;   // points

QString accessibleNameOf(MapType type) {
    switch (type) {
        case MapType::kRegion:
            return QStringLiteral("Mappa delle regioni");
        case MapType::kProvince:
            return QStringLiteral("Mappa delle province");
        case MapType::kWind:
            return QStringLiteral("Mappa del vento");
    }
    return {};
}

}  // namespace

MapWidget::MapWidget(QWidget* parent) : QWidget(parent), view_{} {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    // Not by a QPinchGesture, which Qt 6.4 feeds every movement of the fingers twice.
    setAttribute(Qt::WA_AcceptTouchEvents);
    describe();
}

void MapWidget::setContent(const MapContent& content) {
    MapContent& shown = view_;
    if (content == shown) return;
    if (content.geoData != shown.geoData) scene_.reset();
    if (content.mapType != shown.mapType) view_.gestures = {};
    shown = content;
    describe();
    invalidatePicture();
}

QSize MapWidget::sizeHint() const { return {640, 400}; }

graphics::Size MapWidget::viewSize() const { return graphics::toSize(size()); }

const MapScene& MapWidget::scene() {
    if (!scene_) scene_ = MapScene::make(view_.geoData.value_or(geojson::GeoMapData{}), viewSize());
    return *scene_;
}

void MapWidget::updatePicture() {
    const QColor background = graphics::toQColor(mapBackgroundColor());
    // At a fractional scale the map ends within the last row of pixels, whose rest shows too.
    if (!picture_.cover(rect(), devicePixelRatioF(), background)) cachedGestures_.reset();
    if (!scrollPicture()) drawPicture();
    cachedGestures_ = view_.gestures;
}

bool MapWidget::scrollPicture() {
    if (!cachedGestures_ || cachedGestures_->scale != view_.gestures.scale) return false;
    const Size from = cachedGestures_->offset;
    const Size to = view_.gestures.offset;
    return picture_.scroll(
        {to.width - from.width, to.height - from.height},
        [this](QPainter& painter, const QRectF& part) { drawPart(painter, scene(), part); });
}

void MapWidget::drawPicture() {
    const MapScene& scene = this->scene();
    picture_.draw([&](QImage& image) {
        const auto draw = [&](QPainter& painter, const QRectF& part) {
            drawPart(painter, scene, part);
        };
        if (view_.geoData) {
            graphics::paintTiles(image, draw);
        } else {
            // A text: not worth loading its font for another thread.
            QPainter painter(&image);
            draw(painter, rect());
        }
    });
}

void MapWidget::drawPart(QPainter& painter, const MapScene& scene, const QRectF& part) const {
    painter.save();
    painter.setFont(font());
    painter.setClipRect(part);
    painter.translate(part.topLeft());
    graphics::QtCanvas canvas(painter, {part.width(), part.height()});
    canvas.translate(-part.x(), -part.y());
    view_.draw(canvas, viewSize(), scene);
    painter.restore();
}

template <class Gesture>
void MapWidget::apply(Gesture gesture) {
    const MapGestures before = view_.gestures;
    gesture(view_.gestures);
    if (view_.gestures.scale != before.scale || view_.gestures.offset != before.offset) {
        update();
    }
}

void MapWidget::invalidatePicture() {
    cachedGestures_.reset();
    update();
}

void MapWidget::paintEvent(QPaintEvent*) {
    updatePicture();
    QPainter painter(this);
    picture_.paint(painter);
    if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
    ui::paintFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), ui::kCornerRadius,
                       ui::Theme::lightAppearance().brandText);
}

void MapWidget::resizeEvent(QResizeEvent*) {
    scene_.reset();
    picture_.release();
}

void MapWidget::showEvent(QShowEvent* event) {
    // A map that comes back from another page is a new one; one that comes back from the task bar
    // stays as it was.
    if (!event->spontaneous()) showWholeMap();
}

void MapWidget::hideEvent(QHideEvent*) { picture_.release(); }

void MapWidget::describe() {
    setAccessibleName(accessibleNameOf(view_.mapType));
    setAccessibleDescription(
        base::toQString(view_.summary()) +
        QStringLiteral(" Tasti + e - per lo zoom, frecce per spostare la mappa, Home per vederla "
                       "tutta."));
}

void MapWidget::showWholeMap() {
    apply([](MapGestures& map) { map = {}; });
}

bool MapWidget::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::ToolTip:
            showToolTip(dynamic_cast<const QHelpEvent&>(*event));
            return true;
        case QEvent::NativeGesture:
            return pinch(dynamic_cast<const QNativeGestureEvent&>(*event)) || QWidget::event(event);
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            touch(dynamic_cast<const QTouchEvent&>(*event));
            return true;
        default:
            return QWidget::event(event);
    }
}

void MapWidget::showToolTip(const QHelpEvent& event) {
    const auto feature =
        scene().featureAt(viewToMap(view_.gestures, graphics::toPoint(event.pos()), viewSize()));
    if (!view_.geoData || !feature) {
        QToolTip::hideText();
        return;
    }
    const QString text = base::toQString(view_.hoverText(view_.geoData->features[*feature]));
    // Marked as rich text, so that a name is never taken for markup.
    QToolTip::showText(
        event.globalPos(),
        QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped()), this);
}

bool MapWidget::pinch(const QNativeGestureEvent& event) {
    switch (event.gestureType()) {
        case Qt::BeginNativeGesture:
            nativeMagnification_ = 1;
            pinchEnded(view_.gestures);
            return true;
        case Qt::ZoomNativeGesture:
            // The value of each event is what the magnification has grown by.
            nativeMagnification_ += event.value();
            apply([&](MapGestures& map) { pinchChanged(map, nativeMagnification_); });
            return true;
        case Qt::EndNativeGesture:
            pinchEnded(view_.gestures);
            return true;
        default:
            return false;
    }
}

void MapWidget::touch(const QTouchEvent& event) {
    const auto isMoving = [](const QEventPoint& point) {
        return point.state() == QEventPoint::Updated || point.state() == QEventPoint::Stationary;
    };
    const QList<QEventPoint>& fingers = event.points();
    if (!std::all_of(fingers.begin(), fingers.end(), isMoving)) return;
    // The map sticks to one finger, or to the middle between the first two.
    const QEventPoint& one = fingers.front();
    const QEventPoint& other = fingers[fingers.size() > 1 ? 1 : 0];
    const QPointF middle = (one.position() + other.position()) / 2;
    const QPointF moved = middle - (one.lastPosition() + other.lastPosition()) / 2;
    const double reach = QLineF(one.position(), other.position()).length();
    const double lastReach = QLineF(one.lastPosition(), other.lastPosition()).length();
    apply([&](MapGestures& map) {
        moveBy(map, {moved.x(), moved.y()});
        if (reach > 0 && lastReach > 0) {
            zoomBy(map, reach / lastReach, graphics::toPoint(middle), viewSize());
        }
    });
}

void MapWidget::wheelEvent(QWheelEvent* event) {
    const double factor = std::pow(kZoomStep, event->angleDelta().y() / kNotch);
    apply([&](MapGestures& map) {
        zoomBy(map, factor, graphics::toPoint(event->position()), viewSize());
    });
}

void MapWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    // The release of an earlier press may have gone to a window that opened over this one.
    dragEnded(view_.gestures);
    pressedAt_ = event->position();
    setCursor(Qt::ClosedHandCursor);
}

void MapWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPointF moved = event->position() - pressedAt_;
    apply([&](MapGestures& map) { dragChanged(map, {moved.x(), moved.y()}); });
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragEnded(view_.gestures);
    setCursor(Qt::OpenHandCursor);
}

void MapWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) showWholeMap();
}

void MapWidget::keyPressEvent(QKeyEvent* event) {
    const auto zoom = [this](double factor) {
        const graphics::Point center{viewSize().width / 2, viewSize().height / 2};
        apply([&](MapGestures& map) { zoomBy(map, factor, center, viewSize()); });
    };
    const auto move = [this](double dx, double dy) {
        apply([&](MapGestures& map) { moveBy(map, {dx, dy}); });
    };
    switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            zoom(kZoomStep);
            break;
        case Qt::Key_Minus:
            zoom(1 / kZoomStep);
            break;
        case Qt::Key_Left:
            move(kArrowStep, 0);
            break;
        case Qt::Key_Right:
            move(-kArrowStep, 0);
            break;
        case Qt::Key_Up:
            move(0, kArrowStep);
            break;
        case Qt::Key_Down:
            move(0, -kArrowStep);
            break;
        case Qt::Key_Home:
            showWholeMap();
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace kalvo::geo
