#pragma once

#include "UI/Style/Theme.h"

#include <QProxyStyle>

class QStyleOptionSlider;

/// Draws the standard widgets: buttons, check boxes as switches, text fields, frames of combo boxes, sliders,
/// vertical scroll bars, table headers, menus, drop-down lists and tool tips. Fusion draws the rest, and Qt's
/// own dialogs. The palette of a button's option has the colours of its text and, for a default button, of
/// its ground.
class Style : public QProxyStyle {
    Q_OBJECT

public:
    Style();

    static constexpr Theme::Length knobSide{16};
    /// Returns the area of the knob of a horizontal slider that runs from left to right.
    static QRectF knob(const QStyleOptionSlider& slider);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
};
