#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

/// How the standard widgets look here: check boxes as switches, text fields, sliders, the scroll bars of
/// pages and the heads of tables. Everything else is Fusion's, and so are Qt's own dialogs and drop-down
/// lists.
class Style : public QProxyStyle {
    Q_OBJECT

public:
    Style();

    static constexpr int knobSide = 16;
    /// The knob of a horizontal slider.
    static QRectF knob(const QStyleOptionSlider& slider);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
};
