#pragma once

#include <QProxyStyle>

namespace kalvo::ui {

/// The controls of the application on Qt's Fusion style: fields, drop-down menus, buttons, scroll
/// bars, menus and the ring round what has the keyboard focus. A QPushButton is bordered; one
/// whose property "prominent" is true is filled with the accent color, as is a checkable one
/// while it is on. The ring is shown while the keyboard is in use and goes with a press of the
/// mouse; mnemonics are underlined while Alt is held. Colors and fonts come from `Theme`; a
/// style, unlike a style sheet, costs nothing at the start.
class KalvoStyle final : public QProxyStyle {
    Q_OBJECT

 public:
    KalvoStyle();

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QApplication* application) override;
    void polish(QWidget* widget) override;
    void unpolish(QApplication* application) override;
    bool eventFilter(QObject* object, QEvent* event) override;

    void drawPrimitive(PrimitiveElement element,
                       const QStyleOption* option,
                       QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element,
                     const QStyleOption* option,
                     QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control,
                            const QStyleOptionComplex* option,
                            QPainter* painter,
                            const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type,
                                         const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element,
                                       const QStyleOption* option,
                                       const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control,
                                       const QStyleOptionComplex* option,
                                       SubControl part,
                                       const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric,
                                  const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint,
                                const QStyleOption* option,
                                const QWidget* widget,
                                QStyleHintReturn* returned) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap icon,
                                     const QStyleOption* option,
                                     const QWidget* widget) const override;

 private:
    void underlineMnemonics(bool shown);

    bool showsMnemonics_ = false;
};

}  // namespace kalvo::ui
