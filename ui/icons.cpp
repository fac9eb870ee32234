#include "ui/icons.h"

#include <cmath>

#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "ui/theme.h"

namespace kalvo::ui {

namespace {

/// Paints a symbol in the painter's pen color, so that a button's icon follows its text.
class SymbolEngine final : public QIconEngine {
 public:
    explicit SymbolEngine(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        const int size = std::min(rect.width(), rect.height());
        const QPixmap symbol = symbolPixmap(name_, size, painter->pen().color(),
                                            painter->device()->devicePixelRatioF());
        painter->drawPixmap(
            QPoint(rect.x() + (rect.width() - size) / 2, rect.y() + (rect.height() - size) / 2),
            symbol);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const Theme& theme = Theme::current();
        return symbolPixmap(name_, std::min(size.width(), size.height()),
                            mode == QIcon::Disabled ? theme.tertiaryText : theme.text, 1);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new SymbolEngine(name_); }

 private:
    QString name_;
};

}  // namespace

QIcon symbolIcon(const QString& name) { return QIcon(new SymbolEngine(name)); }

QPixmap symbolPixmap(const QString& name, int size, const QColor& color, double devicePixelRatio) {
    const int pixels = static_cast<int>(std::lround(size * devicePixelRatio));
    const QString key = QStringLiteral("symbol/%1/%2/%3/%4")
                            .arg(name, color.name(QColor::HexArgb))
                            .arg(pixels)
                            .arg(devicePixelRatio);
    QPixmap symbol;
    if (QPixmapCache::find(key, &symbol)) return symbol;

    symbol = QPixmap(pixels, pixels);
    symbol.fill(Qt::transparent);
    QPainter painter(&symbol);
    QSvgRenderer renderer(QStringLiteral(":/kalvo/icons/%1.svg").arg(name));
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(symbol.rect(), color);
    painter.end();
    symbol.setDevicePixelRatio(devicePixelRatio);
    QPixmapCache::insert(key, symbol);
    return symbol;
}

}  // namespace kalvo::ui
