#include "geo/qt/map_widget.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QToolTip>
#include <QTouchEvent>
#include <QWheelEvent>

#include "base/qt/qstring.h"
#include "geo/wind_legend.h"
#include "graphics/qt/conversions.h"
#include "graphics/qt/parallel_painting.h"
#include "graphics/qt/qt_canvas.h"
#include "ui/accessible_role.h"
#include "ui/copy_picture_menu.h"
#include "ui/paint.h"
#include "ui/theme.h"
#include "ui/tool_tip.h"

namespace kalvo::geo {

namespace {

using graphics::Size;

constexpr double kZoomStep = 1.25;  // of a notch of the wheel, a press of a key or a button
constexpr double kNotch = 120;      // eighths of a degree
constexpr double kArrowStep = 40;   // points

MapWidget::Fingers firstTwo(const QList<QEventPoint>& points) {
    QList<QPointF> places;
    for (const QEventPoint& point : points) {
        if (point.state() != QEventPoint::Released) places << point.position();
    }
    if (places.isEmpty()) return {};
    return {places.front(), places[places.size() > 1 ? 1 : 0]};
}

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

MapWidget::MapWidget(QWidget* parent) : QWidget(parent), view_{}, buttons_(new MapButtons(this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    ui::installAccessibleRole<MapWidget, QAccessible::Graphic>();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setMouseTracking(true);
    // Not by a QPinchGesture, which Qt 6.4 feeds every movement of the fingers twice.
    setAttribute(Qt::WA_AcceptTouchEvents);
    connect(buttons_, &MapButtons::zoomInPressed, this, [this] { zoomAboutCenter(kZoomStep); });
    connect(buttons_, &MapButtons::zoomOutPressed, this,
            [this] { zoomAboutCenter(1 / kZoomStep); });
    connect(buttons_, &MapButtons::wholeMapPressed, this, &MapWidget::showWholeMap);
    connect(buttons_, &MapButtons::entered, this, [this] { setPointer({}); });
    describe();
}

void MapWidget::setContent(const MapContent& content) {
    MapContent& shown = view_;
    if (content == shown) return;
    if (content.geoData != shown.geoData) scene_.reset();
    if (content.mapType != shown.mapType) view_.gestures = {};
    shown = content;
    hovered_.reset();
    updateHover();
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
        buttons_->setEffective(
            view_.gestures.scale<kLargestMapScale, view_.gestures.scale> kSmallestMapScale);
        update();
    }
    updateHover();
}

void MapWidget::setPointer(std::optional<QPointF> pointer) {
    pointer_ = pointer;
    updateHover();
}

void MapWidget::updateHover() {
    std::optional<std::size_t> hovered;
    if (pointer_ && !view_.gestures.isDragging) {
        hovered = view_.featureAt(graphics::toPoint(*pointer_), viewSize(), scene());
    }
    if (hovered == hovered_) return;
    hovered_ = hovered;
    QToolTip::hideText();
    update();
}

void MapWidget::invalidatePicture() {
    cachedGestures_.reset();
    update();
}

void MapWidget::paintEvent(QPaintEvent*) {
    updatePicture();
    QPainter painter(this);
    picture_.paint(painter);
    if (hovered_) {
        graphics::QtCanvas canvas(painter, viewSize());
        view_.drawOutlined(canvas, viewSize(), scene(), *hovered_);
    }
    if (view_.hasLegend()) paintLegend(painter);
    if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
    ui::paintFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), ui::kCornerRadius,
                       ui::Theme::lightAppearance().brandText);
}

void MapWidget::paintLegend(QPainter& painter) {
    const QRectF card = graphics::toQRectF(windLegendCard(viewSize()));
    if (!legend_.cover(card, devicePixelRatioF(), Qt::transparent)) {
        legend_.draw([this](QImage& image) {
            QPainter onCard(&image);
            onCard.setFont(font());
            onCard.translate(-legend_.topLeft());
            graphics::QtCanvas canvas(onCard, viewSize());
            drawWindLegend(canvas, viewSize());
        });
    }
    legend_.paint(painter);
    const auto marked = hovered_ ? view_.windYield(*hovered_) : std::nullopt;
    if (!marked) return;
    graphics::QtCanvas canvas(painter, viewSize());
    drawWindLegendMark(canvas, viewSize(), *marked);
}

QImage MapWidget::picture(double scale) const {
    QImage image((QSizeF(size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    painter.setFont(font());
    graphics::QtCanvas canvas(painter, viewSize());
    view_.draw(canvas, viewSize());
    if (view_.hasLegend()) drawWindLegend(canvas, viewSize());
    return image;
}

void MapWidget::resizeEvent(QResizeEvent*) {
    buttons_->placeIn(size());
    scene_.reset();
    picture_.release();
}

void MapWidget::showEvent(QShowEvent* event) {
    // A map that comes back from another page is a new one; one that comes back from the task bar
    // stays as it was.
    if (!event->spontaneous()) showWholeMap();
}

void MapWidget::hideEvent(QHideEvent*) {
    picture_.release();
    legend_.release();
    setPointer({});
}

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
            // A touch of a button becomes a click where nobody takes it for a touch.
            if (buttons_->geometry().contains(
                    dynamic_cast<QTouchEvent&>(*event).points().front().position().toPoint())) {
                event->ignore();
                return false;
            }
            [[fallthrough]];
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            touch(dynamic_cast<const QTouchEvent&>(*event));
            return true;
        default:
            return QWidget::event(event);
    }
}

void MapWidget::showToolTip(const QHelpEvent& event) {
    const std::string text = view_.toolTip(graphics::toPoint(event.pos()), viewSize(), scene());
    QToolTip::showText(event.globalPos(), ui::plainToolTip(base::toQString(text)), this);
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
    const QList<QEventPoint>& points = event.points();
    const Fingers fingers = firstTwo(points);
    if (!std::all_of(points.begin(), points.end(), isMoving)) {
        // Each finger that comes or goes begins another drag and another pinch.
        dragEnded(view_.gestures);
        pinchEnded(view_.gestures);
        touchStart_ = fingers;
        return;
    }
    const QPointF moved = fingers.center() - touchStart_.center();
    apply([&](MapGestures& map) {
        dragChanged(map, {moved.x(), moved.y()});
        if (touchStart_.length() > 0) pinchChanged(map, fingers.length() / touchStart_.length());
    });
}

void MapWidget::wheelEvent(QWheelEvent* event) {
    // A wheel that turns sideways is for whoever stands around the map.
    if (event->angleDelta().y() == 0) {
        event->ignore();
        return;
    }
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
    setPointer(event->position());
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPointF moved = event->position() - pressedAt_;
    apply([&](MapGestures& map) { dragChanged(map, {moved.x(), moved.y()}); });
}

void MapWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    apply(dragEnded);
    setCursor(Qt::OpenHandCursor);
}

void MapWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) showWholeMap();
    mousePressEvent(event);
}

void MapWidget::leaveEvent(QEvent*) { setPointer({}); }

void MapWidget::contextMenuEvent(QContextMenuEvent* event) {
    ui::openCopyPictureMenu(*this, *event, [this](double scale) { return picture(scale); });
}

void MapWidget::zoomAboutCenter(double factor) {
    const graphics::Point center{viewSize().width / 2, viewSize().height / 2};
    apply([&](MapGestures& map) { zoomBy(map, factor, center, viewSize()); });
}

void MapWidget::keyPressEvent(QKeyEvent* event) {
    const auto move = [this](double dx, double dy) {
        apply([&](MapGestures& map) { moveBy(map, {dx, dy}); });
    };
    switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            zoomAboutCenter(kZoomStep);
            break;
        case Qt::Key_Minus:
            zoomAboutCenter(1 / kZoomStep);
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
