#include "UI/Kit/IconButton.h"

#include "UI/Style/Symbols.h"

#include <QApplication>
#include <QEvent>
#include <QStyleOption>

using Theme::Role;

namespace {

constexpr Theme::Length iconSymbolSize{18};
constexpr int textPadding = 8;

} // namespace

IconButton::IconButton(const QString& symbol, const QString& help, Role tint, QWidget* parent)
    : QToolButton(parent)
    , m_tint(tint) {
    setIcon(Symbols::icon(symbol));
    setIconSize({iconSymbolSize, iconSymbolSize});
    setHelp(help);
    Theme::fixSize(this, Theme::controlHeight, Theme::controlHeight);
}

void IconButton::setHelp(const QString& help) {
    setToolTip(help);
    setAccessibleName(help);
}

void IconButton::setQuiet() {
    m_isQuiet = true;
}

void IconButton::paintEvent(QPaintEvent* event) {
    const QWidget* row = parentWidget();
    const QWidget* focused = QApplication::focusWidget();
    if (!m_isQuiet || row->underMouse() || (focused && row->isAncestorOf(focused)))
        QToolButton::paintEvent(event);
}

void IconButton::focusInEvent(QFocusEvent* event) {
    if (m_isQuiet)
        parentWidget()->update(); // with the other buttons of the row
    QToolButton::focusInEvent(event);
}

void IconButton::focusOutEvent(QFocusEvent* event) {
    if (m_isQuiet)
        parentWidget()->update();
    QToolButton::focusOutEvent(event);
}

void IconButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        setIconSize({iconSymbolSize, iconSymbolSize});
    QToolButton::changeEvent(event);
}

void IconButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->palette.setColor(QPalette::ButtonText, Theme::color(m_tint, isEnabled() ? 1 : 0.4));
}

TextButton::TextButton(const QString& text, QWidget* parent)
    : QToolButton(parent) {
    setText(text);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    Theme::useFont(this, Theme::TextStyle::body, QFont::Medium);
}

QSize TextButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * textPadding, Theme::controlHeight};
}

void TextButton::initStyleOption(QStyleOptionToolButton* option) const {
    QToolButton::initStyleOption(option);
    option->palette.setColor(QPalette::ButtonText, Theme::color(Role::accent));
}
