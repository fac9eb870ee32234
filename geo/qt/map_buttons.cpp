#include "geo/qt/map_buttons.h"

#include <utility>

#include <QApplication>
#include <QPainter>
#include <QToolTip>

#include "ui/accessible_role.h"
#include "ui/icons.h"
#include "ui/paint.h"
#include "ui/theme.h"

namespace kalvo::geo {

namespace {

// Points.
constexpr int kCell = 30;
constexpr int kIcon = 16;

// The light paper's colors, in both appearances.
const QColor kBorder(0x808d86);
const QColor kSeparator(0xd3dbd7);
const QColor kHover(0xe9eeeb);
const QColor kPressed(0xe5eae7);
const QColor kIneffective(0xa3aea8);

}  // namespace

MapButton::MapButton(QString symbol, const QString& name, const QString& key, QWidget* parent)
    : QAbstractButton(parent), symbol_(std::move(symbol)) {
    setAccessibleName(name);
    setToolTip(QStringLiteral("%1 (%2)").arg(name, key));
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_Hover);
}

void MapButton::setEffective(bool isEffective) {
    if (isEffective == isEffective_) return;
    isEffective_ = isEffective;
    update();
}

bool MapButton::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QAbstractButton::event(event);
    showToolTip();
    return true;
}

void MapButton::showToolTip() {
    constexpr int kGap = 6;
    const QPoint card = parentWidget()->mapToGlobal(QPoint(0, 0));
    QToolTip::showText(card, toolTip(), this);
    // Qt shows tooltips below the pointer, where they would cover the next button.
    for (QWidget* tip : QApplication::topLevelWidgets()) {
        if (!tip->inherits("QTipLabel")) continue;
        const int middle = mapToGlobal(rect().center()).y();
        tip->move(card.x() - kGap - tip->width(), middle - tip->height() / 2);
    }
}

void MapButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (isEffective_ && underMouse()) {
        ui::paintBox(painter, QRectF(rect()).adjusted(3, 3, -3, -3), 4,
                     isDown() ? kPressed : kHover);
    }
    const QColor color = isEffective_ ? ui::Theme::lightAppearance().text : kIneffective;
    constexpr int kInset = (kCell - kIcon) / 2;
    painter.drawPixmap(kInset, kInset,
                       ui::symbolPixmap(symbol_, kIcon, color, devicePixelRatioF()));
}

MapButtons::MapButtons(QWidget* map)
    : QWidget(map),
      buttons_{
          new MapButton(
              QStringLiteral("plus"), QStringLiteral("Ingrandisci"), QStringLiteral("+"), this),
          new MapButton(
              QStringLiteral("minus"), QStringLiteral("Riduci"), QStringLiteral("−"), this),
          new MapButton(QStringLiteral("viewfinder"),
                        QStringLiteral("Tutta la mappa"),
                        QStringLiteral("Home"),
                        this)} {
    ui::installAccessibleRole<MapButtons, QAccessible::Grouping>();
    setAccessibleName(QStringLiteral("Zoom della mappa"));
    const auto [zoomIn, zoomOut, wholeMap] = buttons_;
    connect(zoomIn, &QAbstractButton::clicked, this, &MapButtons::zoomInPressed);
    connect(zoomOut, &QAbstractButton::clicked, this, &MapButtons::zoomOutPressed);
    connect(wholeMap, &QAbstractButton::clicked, this, &MapButtons::wholeMapPressed);
    int y = 0;
    for (MapButton* button : buttons_) {
        button->setGeometry(0, y, kCell, kCell);
        y += kCell;
    }
    resize(kCell, y + ui::kShadowHeight);
}

void MapButtons::placeIn(const QSize& map) {
    constexpr int kNarrowMap = 400;
    const int edge = map.width() < kNarrowMap ? 8 : 12;
    move(map.width() - edge - width(), map.height() - edge - height() + ui::kShadowHeight);
}

void MapButtons::setEffective(bool canZoomIn, bool canZoomOut) {
    buttons_[0]->setEffective(canZoomIn);
    buttons_[1]->setEffective(canZoomOut);
}

void MapButtons::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF card(0, 0, width(), height() - ui::kShadowHeight);
    ui::paintShadow(painter, card, ui::kCornerRadius);
    ui::paintBox(painter, card, ui::kCornerRadius, Qt::white, kBorder);
    constexpr double kSide = 6;
    for (int y = kCell; y < height() - kCell; y += kCell) {
        const QRectF line(kSide, y, width() - 2 * kSide, ui::hairlineWidth(painter));
        painter.fillRect(ui::snappedToPixels(painter, line), kSeparator);
    }
}

void MapButtons::enterEvent(QEnterEvent*) { emit entered(); }

}  // namespace kalvo::geo
