#include "UI/Settings/TabButton.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

#include <algorithm>

using Theme::Role;

namespace {

constexpr Theme::Length minTabWidth{72};
constexpr int tabPadding = 12;
constexpr Theme::Length tabHeight{50};
constexpr Theme::Length tabSymbolSize{20};
constexpr Theme::Length symbolTop{5};
constexpr Theme::Length labelHeight{20};

} // namespace

TabButton::TabButton(QString symbol, const QString& label, QWidget* parent)
    : QAbstractButton(parent)
    , m_symbol(std::move(symbol)) {
    setText(label);
    Theme::useFont(this, Theme::TextStyle::callout, QFont::Medium);
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TabButton::sizeHint() const {
    return {std::max<int>(minTabWidth, fontMetrics().horizontalAdvance(text()) + 2 * tabPadding), tabHeight};
}

void TabButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (isChecked() || underMouse() || isDown())
        Painting::drawCard(painter, rect(), Theme::controlRadius,
                           isChecked() ? Theme::color(Role::accent, 0.16) : Theme::color(Role::hoverFill));
    // Only once the keyboard is in use: the window opens with the focus here.
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange))
        Painting::drawFocusRing(painter, rect(), Theme::controlRadius);
    const QColor ink = Theme::color(isChecked() ? Role::accent : Role::secondaryText);
    Symbols::draw(painter, m_symbol, ink, QRectF(0, symbolTop, width(), tabSymbolSize), tabSymbolSize);
    painter.setFont(font());
    painter.setPen(ink);
    painter.drawText(QRectF(0, height() - labelHeight - 3, width(), labelHeight), Qt::AlignCenter, text());
}
