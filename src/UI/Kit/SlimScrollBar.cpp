#include "UI/Kit/SlimScrollBar.h"

#include "UI/Kit/Theme.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionSlider>

namespace {

constexpr int barWidth = Theme::scrollBarRoom;
constexpr int thumbInset = 3;
constexpr int shortestThumb = 36;

/// A groove from end to end: no arrows, and a thumb that never gets too short to hold.
class NoArrowsStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_ScrollBar || !slider)
            return QProxyStyle::subControlRect(control, option, part, widget);
        const QRect bar = slider->rect;
        const qint64 range = slider->maximum - slider->minimum;
        const qint64 whole = range + slider->pageStep;
        const int length =
            whole > 0
                ? qBound(shortestThumb, static_cast<int>(bar.height() * qint64(slider->pageStep) / whole),
                         qMax(shortestThumb, bar.height()))
                : bar.height();
        const int start = sliderPositionFromValue(slider->minimum, slider->maximum, slider->sliderPosition,
                                                  bar.height() - length);
        switch (part) {
        case SC_ScrollBarGroove:
            return bar;
        case SC_ScrollBarSlider:
            return {bar.left(), bar.top() + start, bar.width(), length};
        case SC_ScrollBarSubPage:
            return {bar.left(), bar.top(), bar.width(), start};
        case SC_ScrollBarAddPage:
            return {bar.left(), bar.top() + start + length, bar.width(), bar.height() - start - length};
        default:
            return {};
        }
    }
};

} // namespace

SlimScrollBar::SlimScrollBar(QWidget* parent)
    : QScrollBar(Qt::Vertical, parent) {
    auto* style = new NoArrowsStyle;
    style->setParent(this);
    setStyle(style);
}

void SlimScrollBar::install(QAbstractScrollArea* area) {
    area->setVerticalScrollBar(new SlimScrollBar(area));
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize SlimScrollBar::sizeHint() const {
    return {barWidth, 3 * shortestThumb};
}

void SlimScrollBar::paintEvent(QPaintEvent*) {
    if (maximum() <= minimum())
        return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF thumb =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    const bool held = isSliderDown() || underMouse();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::color(Theme::Role::gray, held ? 0.7 : 0.4));
    const double radius = (barWidth - 2 * thumbInset) / 2.0;
    painter.drawRoundedRect(thumb.adjusted(thumbInset, 2, -thumbInset, -2), radius, radius);
}
