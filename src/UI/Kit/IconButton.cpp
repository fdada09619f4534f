#include "UI/Kit/IconButton.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

using Theme::Role;

namespace {

constexpr int side = 26;
constexpr int iconSymbolSize = 18;
constexpr int textPadding = 8;

} // namespace

IconButton::IconButton(QString symbol, const QString& help, Role tint, QWidget* parent)
    : QAbstractButton(parent)
    , m_symbol(std::move(symbol))
    , m_tint(tint) {
    setToolTip(help);
    setAccessibleName(help);
    setFixedSize(side, side);
    setFocusPolicy(Qt::TabFocus);
}

void IconButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawFeedback(painter, *this, Theme::controlRadius);
    const QColor tint = Theme::color(m_tint, isEnabled() ? 1 : 0.4);
    Symbols::draw(painter, m_symbol, tint, rect(), iconSymbolSize);
}

TextButton::TextButton(const QString& text, QWidget* parent)
    : QAbstractButton(parent) {
    setText(text);
    setFont(Theme::font(Theme::TextStyle::body, QFont::Medium));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TextButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * textPadding, side};
}

void TextButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawFeedback(painter, *this, Theme::controlRadius);
    painter.setPen(Theme::color(Role::accent));
    painter.drawText(rect(), Qt::AlignCenter, text());
}
