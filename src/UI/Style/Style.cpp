#include "UI/Style/Style.h"

#include "UI/Style/MenuDrawing.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

using Theme::Role;

namespace {

constexpr Theme::Length switchWidth{34};
constexpr Theme::Length switchHeight{20};
constexpr int knobInset = 2;
constexpr int switchGap = 8;
constexpr int fieldPadding = 8;
constexpr int buttonPadding = 12;
constexpr int buttonGap = 8;
constexpr int comboPadding = 12;
constexpr Theme::Length comboChevronSize{11};
constexpr int sliderTrackHeight = 4;
constexpr int thumbInset = 3;
constexpr Theme::Length minThumbLength{36};
constexpr int sectionPadding = 8;
constexpr int toolTipPadding = 4;
constexpr Theme::Length sortChevronSize{10};

/// Returns whether the widget is in a window of the program, also in the panel of the tray.
bool isInOurWindow(const QWidget* widget) {
    const QWidget* window = widget ? widget->window() : nullptr;
    return window && !qobject_cast<const QFileDialog*>(window) && !qobject_cast<const QMessageBox*>(window);
}

/// Returns false in a drop-down list too.
bool isOurs(const QWidget* widget) {
    return isInOurWindow(widget) && widget->window()->windowType() != Qt::Popup;
}

/// Draws the ground of a menu, a drop-down list or a tool tip, with square corners: their windows are opaque.
void drawPopUp(QPainter& painter, const QRect& area) {
    painter.fillRect(area, Theme::color(Role::cardFill));
    painter.setPen(Theme::color(Role::controlBorder));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

/// Draws the ring round the current row of a table. The mouse shows which row that is without it.
void drawRowFocus(QPainter& painter, const QStyleOption& row) {
    if (row.state & QStyle::State_KeyboardFocusChange)
        Painting::drawFocusRing(painter, row.rect, Theme::controlRadius);
}

/// Returns null unless the option is that of a vertical scroll bar which this style draws.
const QStyleOptionSlider* slimBar(const QStyleOptionComplex* option, const QWidget* widget) {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    return bar && bar->orientation == Qt::Vertical && isOurs(widget) ? bar : nullptr;
}

void drawTextField(QPainter& painter, const QStyleOption& field) {
    Painting::drawControl(painter, field.rect);
    if (field.state & QStyle::State_HasFocus)
        Painting::drawFocusRing(painter, field.rect, Theme::controlRadius);
}

void drawSwitch(QPainter& painter, const QRectF& track, QStyle::State state, double opacity) {
    const double radius = track.height() / 2;
    const bool isOn = state & QStyle::State_On;
    Painting::drawCard(painter, track, radius,
                       isOn ? Theme::tileColor(Role::green, opacity) : Theme::color(Role::gray, opacity));
    const double side = track.height() - 2 * knobInset;
    const double x = isOn ? track.right() - knobInset - side : track.left() + knobInset;
    Painting::drawCard(painter, QRectF(x, track.top() + knobInset, side, side), side / 2, Qt::white);
    if (state & QStyle::State_HasFocus)
        Painting::drawFocusRing(painter, track, radius);
}

/// Draws the switch before its text, or at the far end where the check box is as wide as the form.
void drawCheckBox(QPainter& painter, const QStyleOptionButton& box, const QWidget* widget) {
    const Painting::Mirrored mirrored(painter, box.rect, box.direction);
    const double opacity = box.state & QStyle::State_Enabled ? 1 : Theme::disabledOpacity;
    const bool isSpread = widget && widget->sizePolicy().expandingDirections() & Qt::Horizontal;
    QRectF line = box.rect;
    QRectF track(line.topLeft(), QSizeF(switchWidth, switchHeight));
    track.moveTop(line.top() + (line.height() - track.height()) / 2);
    if (isSpread) {
        track.moveRight(line.right());
        line.setRight(track.left() - switchGap);
    } else {
        line.setLeft(track.right() + switchGap);
    }
    drawSwitch(painter, track, box.state, opacity);
    painter.setFont(Theme::font(Theme::TextStyle::body));
    painter.setPen(Theme::color(Role::primaryText, opacity));
    Painting::drawElided(painter, line, Qt::ElideRight, box.text);
}

/// Returns the text as it is displayed, with single ampersands.
QString caption(const QStyleOptionButton& button) {
    return QString(button.text).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

/// Returns the area of the symbol and the text.
QRect buttonContents(const QStyleOptionButton& button) {
    const int lead = button.icon.isNull() ? 0 : button.iconSize.width() + buttonGap;
    const int width = lead + button.fontMetrics.horizontalAdvance(caption(button));
    return {(button.rect.width() - width) / 2, 0, width, button.rect.height()};
}

void drawButtonGround(QPainter& painter, const QStyleOptionButton& button) {
    const QRectF area = button.rect;
    if (button.features & QStyleOptionButton::DefaultButton) {
        const QColor fill = button.palette.color(QPalette::Button);
        const QColor hovered = button.state & QStyle::State_MouseOver ? fill.darker(110) : fill;
        Painting::drawCard(painter, area, Theme::controlRadius,
                           button.state & QStyle::State_Sunken ? fill.darker(125) : hovered);
        if (button.state & QStyle::State_HasFocus) // the ring's colour cannot be seen on the fill
            Painting::drawCard(painter, area.adjusted(2, 2, -2, -2), Theme::controlRadius - 2,
                               Qt::transparent, Qt::white);
        return;
    }
    if (!(button.features & QStyleOptionButton::Flat))
        Painting::drawControl(painter, area);
    Painting::drawFeedback(painter, area, button.state, Theme::controlRadius, 0.7);
}

void drawPushButton(QPainter& painter, const QStyleOptionButton& button) {
    const Painting::Mirrored mirrored(painter, button.rect, button.direction);
    drawButtonGround(painter, button);
    QRectF line = buttonContents(button);
    painter.setPen(button.palette.color(QPalette::ButtonText));
    if (!button.icon.isNull()) {
        const int side = button.iconSize.width();
        button.icon.paint(&painter, buttonContents(button).adjusted(0, 0, side - int(line.width()), 0));
        line.setLeft(line.left() + side + buttonGap);
    }
    Painting::drawTabular(painter, line, Qt::AlignLeft, caption(button));
}

/// Draws the symbol, or the text where there is none.
void drawToolButton(QPainter& painter, const QStyleOptionToolButton& button) {
    Painting::drawFeedback(painter, button.rect, button.state, Theme::controlRadius);
    painter.setPen(button.palette.color(QPalette::ButtonText));
    if (button.icon.isNull())
        painter.drawText(button.rect, Qt::AlignCenter, button.text);
    else
        button.icon.paint(
            &painter, QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, button.iconSize, button.rect));
}

/// Returns the area of the text.
QRect comboBoxField(const QStyleOptionComboBox& box) {
    return box.rect.adjusted(comboPadding, 0, -comboPadding - comboChevronSize - buttonGap, 0);
}

/// Draws all but the text.
void drawComboBox(QPainter& painter, const QStyleOptionComboBox& box) {
    const Painting::Mirrored mirrored(painter, box.rect, box.direction);
    const QRectF area = box.rect;
    const bool isEnabled = box.state & QStyle::State_Enabled;
    Painting::drawControl(painter, area);
    if (isEnabled && box.state & QStyle::State_MouseOver)
        Painting::drawCard(painter, area, Theme::controlRadius, Theme::color(Role::hoverFill, 0.7));
    const QRectF chevron(area.right() - comboPadding - comboChevronSize, 0, comboChevronSize, area.height());
    Symbols::draw(painter, QStringLiteral("chevron.down"),
                  Theme::color(Role::secondaryText, isEnabled ? 1 : Theme::disabledOpacity), chevron,
                  comboChevronSize);
    if (box.state & QStyle::State_HasFocus)
        Painting::drawFocusRing(painter, area, Theme::controlRadius);
}

void drawHeaderGround(QPainter& painter, const QStyleOption& header) {
    const QRect& area = header.rect;
    painter.fillRect(area, header.palette.base());
    painter.fillRect(area.left(), area.bottom(), area.width(), 1, Theme::color(Role::separator, 1.8));
}

/// Points down for the largest first, up for the smallest.
void drawChevron(QPainter& painter, const QRectF& area, bool isUp) {
    painter.save();
    if (isUp) {
        painter.translate(area.center());
        painter.rotate(180);
        painter.translate(-area.center());
    }
    Symbols::draw(painter, QStringLiteral("chevron.down"), Theme::color(Role::primaryText), area,
                  sortChevronSize);
    painter.restore();
}

void drawHeaderSection(QPainter& painter, const QStyleOptionHeader& section) {
    const Painting::Mirrored mirrored(painter, section.rect, section.direction);
    drawHeaderGround(painter, section);
    const bool isSorted = section.sortIndicator != QStyleOptionHeader::None;
    painter.setFont(Theme::font(Theme::TextStyle::caption, isSorted ? QFont::DemiBold : QFont::Medium));
    painter.setPen(Theme::color(isSorted ? Role::primaryText : Role::secondaryText));
    const QRectF area = section.rect;
    const double width = QFontMetricsF(painter.font()).horizontalAdvance(section.text);
    const double room = isSorted ? sortChevronSize + 2 : 0;
    // A narrow column has less padding.
    const double inset = std::clamp((area.width() - width - room) / 2, 2.0, double(sectionPadding));
    QRectF line = area.adjusted(inset, 0, -inset, 0);
    if (section.textAlignment & Qt::AlignRight)
        line.setLeft(std::max(line.left(), line.right() - width - room - 1));
    else if (section.textAlignment & Qt::AlignHCenter)
        line.setLeft(std::max(line.left(), line.center().x() - (width + room) / 2));
    Painting::drawElided(painter, line.adjusted(0, 0, 1 - room, 0), Qt::ElideRight, section.text);
    const QRectF chevron(std::min(line.left() + width + 2, line.right() - sortChevronSize), area.top(),
                         sortChevronSize, area.height());
    if (isSorted)
        drawChevron(painter, chevron, section.sortIndicator == QStyleOptionHeader::SortDown);
}

void drawSlider(QPainter& painter, const QStyleOptionSlider& slider) {
    const Painting::Mirrored mirrored(painter, slider.rect,
                                      slider.upsideDown ? Qt::RightToLeft : Qt::LeftToRight);
    const bool isEnabled = slider.state & QStyle::State_Enabled;
    const QRectF area = slider.rect;
    const QRectF track(area.left() + 1, area.top() + (area.height() - sliderTrackHeight) / 2,
                       area.width() - 2, sliderTrackHeight);
    const QRectF knob = Style::knob(slider);
    const double share = (knob.center().x() - track.left()) / track.width();
    Painting::drawProgress(painter, track, share, Theme::color(Role::accent, isEnabled ? 1 : 0.4));
    const double radius = knob.height() / 2;
    Painting::drawCard(painter, knob, radius, Qt::white, Theme::color(Role::controlBorder));
    if (slider.state & QStyle::State_HasFocus)
        Painting::drawFocusRing(painter, knob.adjusted(-2, -2, 2, 2), radius + 2);
}

/// Returns the area of a part: the groove from end to end, and a thumb of a minimum length.
QRect scrollBarPart(const QStyleOptionSlider& slider, QStyle::SubControl part) {
    const QRect bar = slider.rect;
    const qint64 whole = qint64(slider.maximum) - slider.minimum + slider.pageStep;
    const int length =
        whole > 0
            ? qBound<int>(minThumbLength, static_cast<int>(bar.height() * qint64(slider.pageStep) / whole),
                          qMax<int>(minThumbLength, bar.height()))
            : bar.height();
    const int start = QStyle::sliderPositionFromValue(slider.minimum, slider.maximum, slider.sliderPosition,
                                                      bar.height() - length);
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return bar;
    case QStyle::SC_ScrollBarSlider:
        return {bar.left(), bar.top() + start, bar.width(), length};
    case QStyle::SC_ScrollBarSubPage:
        return {bar.left(), bar.top(), bar.width(), start};
    case QStyle::SC_ScrollBarAddPage:
        return {bar.left(), bar.top() + start + length, bar.width(), bar.height() - start - length};
    default:
        return {};
    }
}

/// Draws the thumb alone, when there is something to scroll.
void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar) {
    if (bar.maximum <= bar.minimum)
        return;
    const bool isLit =
        bar.state & QStyle::State_MouseOver || bar.activeSubControls & QStyle::SC_ScrollBarSlider;
    const QRectF thumb = scrollBarPart(bar, QStyle::SC_ScrollBarSlider);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::color(Role::gray, isLit ? 1 : 0.75));
    const double radius = (Theme::scrollBarRoom - 2 * thumbInset) / 2.0;
    painter.drawRoundedRect(thumb.adjusted(thumbInset, 2, -thumbInset, -2), radius, radius);
}

} // namespace

Style::Style()
    : QProxyStyle(QStringLiteral("Fusion")) {}

QRectF Style::knob(const QStyleOptionSlider& slider) {
    const QRectF area = slider.rect;
    const double share =
        double(slider.sliderPosition - slider.minimum) / std::max(1, slider.maximum - slider.minimum);
    return {area.left() + share * (area.width() - knobSide), area.top() + (area.height() - knobSide) / 2,
            double(knobSide), double(knobSide)};
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (element == PE_PanelLineEdit && isOurs(widget))
        drawTextField(*painter, *option);
    else if (element == PE_PanelMenu || element == PE_PanelTipLabel)
        drawPopUp(*painter, option->rect);
    else if (element == PE_FrameMenu)
        return; // the panel has it
    else if (element == PE_FrameFocusRect && isInOurWindow(widget))
        drawRowFocus(*painter, *option);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* section = qstyleoption_cast<const QStyleOptionHeader*>(option);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_PushButton && button && isInOurWindow(widget))
        drawPushButton(*painter, *button);
    else if (element == CE_CheckBox && button && isOurs(widget))
        drawCheckBox(*painter, *button, widget);
    else if (element == CE_MenuItem && item)
        MenuDrawing::drawItem(*painter, *item);
    else if (element == CE_Header && section && isOurs(widget))
        drawHeaderSection(*painter, *section);
    else if (element == CE_HeaderEmptyArea && isOurs(widget))
        drawHeaderGround(*painter, *option);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ToolButton && button && isInOurWindow(widget))
        drawToolButton(*painter, *button);
    else if (control == CC_ComboBox && combo && isInOurWindow(widget))
        drawComboBox(*painter, *combo);
    else if (control == CC_ScrollBar && slimBar(option, widget))
        drawScrollBar(*painter, *slider);
    else if (control == CC_Slider && slider && slider->orientation == Qt::Horizontal)
        drawSlider(*painter, *slider);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                              const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (type == CT_PushButton && box && isInOurWindow(widget)) {
        return {buttonContents(*box).width() + 2 * buttonPadding, Theme::controlHeight};
    }
    if (type == CT_ComboBox && isInOurWindow(widget))
        return {contents.width() + 2 * comboPadding + buttonGap + comboChevronSize, Theme::controlHeight};
    if (type == CT_CheckBox && box && isOurs(widget)) {
        const int text =
            box->text.isEmpty() ? 0 : switchGap + box->fontMetrics.horizontalAdvance(box->text) + 2;
        return {switchWidth + text, Theme::controlHeight};
    }
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type == CT_MenuItem && item)
        return MenuDrawing::itemSize(*item, contents);
    if (type == CT_LineEdit && isOurs(widget))
        return {contents.width() + 2 * fieldPadding, Theme::controlHeight};
    if (type == CT_ScrollBar && slimBar(qstyleoption_cast<const QStyleOptionComplex*>(option), widget))
        return {Theme::scrollBarRoom, 3 * minThumbLength};
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuHMargin:
        return 0;
    case PM_MenuVMargin:
        return 4;
    case PM_ToolTipLabelFrameWidth:
        return toolTipPadding;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* data) const {
    if (hint == SH_ToolTipLabel_Opacity)
        return 255;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == SE_PushButtonContents && button && isInOurWindow(widget))
        return buttonContents(*button);
    if (element == SE_LineEditContents && isOurs(widget))
        return option->rect.adjusted(fieldPadding, 0, -fieldPadding, 0);
    if (element == SE_CheckBoxClickRect && isOurs(widget))
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                            const QWidget* widget) const {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField && combo && isInOurWindow(widget))
        return comboBoxField(*combo);
    const QStyleOptionSlider* bar = control == CC_ScrollBar ? slimBar(option, widget) : nullptr;
    return bar ? scrollBarPart(*bar, part) : QProxyStyle::subControlRect(control, option, part, widget);
}
