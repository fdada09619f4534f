#include "UI/Kit/IconButton.h"

#include "UI/Style/Symbols.h"

#include <QStyleOption>

using Theme::Role;

namespace {

constexpr int side = 26;
constexpr int iconSymbolSize = 18;
constexpr int textPadding = 8;

} // namespace

IconButton::IconButton(const QString& symbol, const QString& help, Role tint, QWidget* parent)
    : QToolButton(parent)
    , m_tint(tint) {
    setIcon(Symbols::icon(symbol));
    setIconSize({iconSymbolSize, iconSymbolSize});
    setToolTip(help);
    setAccessibleName(help);
    setFixedSize(side, side);
}

void IconButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->palette.setColor(QPalette::ButtonText, Theme::color(m_tint, isEnabled() ? 1 : 0.4));
}

TextButton::TextButton(const QString& text, QWidget* parent)
    : QToolButton(parent) {
    setText(text);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setFont(Theme::font(Theme::TextStyle::body, QFont::Medium));
}

QSize TextButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * textPadding, side};
}

void TextButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->palette.setColor(QPalette::ButtonText, Theme::color(Role::accent));
}
