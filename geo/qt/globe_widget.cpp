#include "geo/qt/globe_widget.h"

#include <algorithm>
#include <utility>

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QTimerEvent>

#include "base/qt/qstring.h"
#include "base/shown_text.h"
#include "geo/coordinate_text.h"
#include "geo/globe_gestures.h"
#include "geo/globe_projection.h"
#include "graphics/qt/conversions.h"
#include "graphics/qt/qt_canvas.h"
#include "ui/accessible_role.h"
#include "ui/copy_picture_menu.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::geo {

namespace {

constexpr double kArrowTurn = toRadians(5);

GlobeView::Time now() { return std::chrono::steady_clock::now(); }

graphics::Size textSize(const QWidget& widget,
                        std::string_view text,
                        const graphics::TextStyle& style) {
    const QFontMetricsF metrics(graphics::canvasFont(widget.font(), style), &widget);
    const QString line = base::toQString(text);
    return {metrics.horizontalAdvance(line), metrics.height()};
}

}  // namespace

GlobeWidget::GlobeWidget(CountryRings countryRings, QWidget* parent)
    : QWidget(parent),
      countryRings_(std::move(countryRings)),
      view_{.centerLat = 0,
            .centerLon = 0,
            .targetLat = {},
            .targetLon = {},
            .targetName = {},
            .highlightedCountry = {},
            .onGlobeTap = [this](engine::LatLon place) {
                if (onGlobeTap) onGlobeTap(place);
            }} {
    setAttribute(Qt::WA_OpaquePaintEvent);
    ui::installAccessibleRole<GlobeWidget, QAccessible::Graphic>();
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setAccessibleName(QStringLiteral("Globo terrestre"));
    describe();
    measureTexts();
}

void GlobeWidget::setCenter(LatLonRadians center) {
    if (center == view_.center()) return;
    view_.centerLat = center.lat;
    view_.centerLon = center.lon;
    update();
}

void GlobeWidget::setTarget(std::optional<engine::LatLon> place,
                            const std::optional<std::string>& name) {
    std::optional<std::string> shown;
    if (name) shown = base::shownText(*name);
    if (place == view_.target() && shown == view_.targetName) return;
    view_.targetLat = place ? std::optional(place->lat) : std::nullopt;
    view_.targetLon = place ? std::optional(place->lon) : std::nullopt;
    view_.targetName = std::move(shown);
    describe();
    measureTexts();
    update();
}

QSize GlobeWidget::sizeHint() const { return {640, 400}; }

void GlobeWidget::describe() {
    QString target = QStringLiteral("Nessun luogo segnato.");
    if (const auto marked = view_.target()) {
        const QString name =
            view_.targetName ? base::toQString(*view_.targetName) + QStringLiteral(", ") : "";
        const std::string place = coordinateText(*marked);
        target = QStringLiteral("Luogo segnato: %1%2.").arg(name, base::toQString(place));
    }
    setAccessibleDescription(
        target + QStringLiteral(" Frecce per ruotare, Invio per selezionare il centro, Spazio per "
                                "fermare o riprendere la rotazione."));
}

graphics::Size GlobeWidget::viewSize() const { return graphics::toSize(size()); }

void GlobeWidget::makeScene() {
    const std::vector<engine::CountryRing>& rings = countryRings_();
    hasCountries_ = !rings.empty();
    scene_ = GlobeScene::make(rings);
    backgroundContent_.reset();
    update();
}

void GlobeWidget::measureTexts() {
    hintSize_ = textSize(*this, kGlobeHint, globeHintStyle());
    labelSize_ =
        view_.targetName ? textSize(*this, *view_.targetName, globeLabelStyle()) : graphics::Size{};
}

QRect GlobeWidget::discBounds() const {
    constexpr double kRim = 2;  // half the rim's line, and the pixel in which it fades
    const GlobeProjection projection({}, viewSize());
    const double reach = projection.radius() + kRim;
    return QRectF(projection.center().x - reach, projection.center().y - reach, 2 * reach,
                  2 * reach)
        .toAlignedRect();
}

QRect GlobeWidget::dirtyRect() const {
    if (!view_.target()) return discBounds();
    // The marker and its label stick out when they are near the rim.
    constexpr int kRing = 10;
    const int side = std::max(kRing, static_cast<int>(labelSize_.width / 2) + 2);
    const int above = std::max(kRing, static_cast<int>(16 + labelSize_.height / 2) + 2);
    return discBounds().adjusted(-side, -above, side, kRing);
}

void GlobeWidget::updateBackground(double scale) {
    const QColor color = graphics::toQColor(globeBackgroundColor());
    const bool isKept = background_.cover(discBounds(), scale, color);
    const BackgroundContent content{viewSize(), view_.centerLat};
    if (isKept && backgroundContent_ == content) return;
    background_.draw([&](QImage& image) {
        image.fill(color);
        QPainter painter(&image);
        painter.translate(-background_.topLeft());
        graphics::QtCanvas canvas(painter, viewSize(), &frameCache_);
        view_.drawBackground(canvas, viewSize(), scene_);
    });
    backgroundContent_ = content;
}

void GlobeWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    updateBackground(painter.deviceTransform().m11());
    graphics::QtCanvas canvas(painter, viewSize(), &frameCache_);
    if (const QRect area = event->rect(); !discBounds().contains(area)) {
        canvas.fillRect(
            {double(area.x()), double(area.y()), double(area.width()), double(area.height())},
            globeBackgroundColor());
    }
    background_.paint(painter);
    view_.drawTurning(canvas, viewSize(), scene_);
    const graphics::Rect hint = globeHintBox(hintSize_);
    if (graphics::toQRectF(hint).intersects(event->rect())) {
        drawGlobeHint(canvas, hintSize_);
    }
    if (hasFocusRing_) {
        ui::paintFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), ui::kCornerRadius,
                           ui::Theme::darkAppearance().brandText);
    }
    if (std::exchange(sceneDirty_, false)) {
        QTimer::singleShot(0, this, [this] { makeScene(); });
    }
}

void GlobeWidget::contextMenuEvent(QContextMenuEvent* event) {
    ui::openCopyPictureMenu(*this, *event, [this](double scale) { return picture(scale); });
}

QImage GlobeWidget::picture(double scale) {
    QImage image((QSizeF(size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(graphics::toQColor(globeBackgroundColor()));
    QPainter painter(&image);
    painter.setFont(font());
    graphics::QtCanvas canvas(painter, viewSize());
    view_.draw(canvas, viewSize(), scene_);
    return image;
}

void GlobeWidget::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) measureTexts();
    QWidget::changeEvent(event);
}

void GlobeWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId()) return;
    const double before = view_.centerLon;
    tick(view_, now());
    if (view_.centerLon != before) centerMoved();
}

void GlobeWidget::showEvent(QShowEvent* event) {
    // A globe that comes back from another page is a new one; one that comes back from the task
    // bar goes on as it was.
    if (!event->spontaneous()) {
        view_.isAutoRotating = true;
        view_.lastDragTime = now();
        sceneDirty_ = !hasCountries_;
    }
    runTimer();
}

void GlobeWidget::runTimer() {
    if (view_.isPaused) {
        timer_.stop();
    } else {
        timer_.start(kGlobeTick.count(), Qt::PreciseTimer, this);
    }
}

void GlobeWidget::hideEvent(QHideEvent*) { timer_.stop(); }

void GlobeWidget::press(const QMouseEvent& event, DragRecognizer::Press kind) {
    if (event.button() == Qt::LeftButton)
        pointer_.press(graphics::toPoint(event.position()), now(), kind);
}

void GlobeWidget::mousePressEvent(QMouseEvent* event) {
    setFocusRing(false);
    press(*event, DragRecognizer::Press::kFirst);
}

void GlobeWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    press(*event, DragRecognizer::Press::kRepeated);
}

void GlobeWidget::mouseMoveEvent(QMouseEvent* event) {
    // The release of a press may have gone elsewhere.
    if (!(event->buttons() & Qt::LeftButton)) return;
    const auto time = now();
    const auto drag = pointer_.move(graphics::toPoint(event->position()), time);
    if (!drag) return;
    setCursor(Qt::ClosedHandCursor);
    dragChanged(view_, *drag, time);
    centerMoved();
}

void GlobeWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    setCursor(Qt::OpenHandCursor);
    if (pointer_.release()) tap(view_, graphics::toPoint(event->position()), viewSize());
}

void GlobeWidget::keyPressEvent(QKeyEvent* event) {
    const auto turnBy = [this](double lat, double lon) {
        turn(view_, {lat, lon}, now());
        centerMoved();
    };
    switch (event->key()) {
        case Qt::Key_Left:
            turnBy(0, -kArrowTurn);
            break;
        case Qt::Key_Right:
            turnBy(0, kArrowTurn);
            break;
        case Qt::Key_Up:
            turnBy(kArrowTurn, 0);
            break;
        case Qt::Key_Down:
            turnBy(-kArrowTurn, 0);
            break;
        case Qt::Key_Space:
            togglePause(view_);
            runTimer();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            tap(view_, {viewSize().width / 2, viewSize().height / 2}, viewSize());
            break;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    setFocusRing(true);
}

void GlobeWidget::focusInEvent(QFocusEvent* event) {
    setFocusRing(event->reason() == Qt::TabFocusReason ||
                 event->reason() == Qt::BacktabFocusReason ||
                 (event->reason() == Qt::ActiveWindowFocusReason && ringAwaitsWindow_));
}

void GlobeWidget::focusOutEvent(QFocusEvent* event) {
    // A window that becomes active again goes on where it was left.
    ringAwaitsWindow_ = event->reason() == Qt::ActiveWindowFocusReason && hasFocusRing_;
    setFocusRing(false);
}

void GlobeWidget::centerMoved() {
    if (onCenterChanged) onCenterChanged(view_.center());
    update(dirtyRect());
}

void GlobeWidget::setFocusRing(bool shown) {
    if (hasFocusRing_ == shown) return;
    hasFocusRing_ = shown;
    update();
}

}  // namespace kalvo::geo
