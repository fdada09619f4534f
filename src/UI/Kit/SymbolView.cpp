#include "UI/Kit/SymbolView.h"

#include "UI/Style/Symbols.h"

#include <QPainter>

SymbolView::SymbolView(Theme::Length size, Theme::Length width, QWidget* parent)
    : QWidget(parent)
    , m_size(size) {
    Theme::fixSize(this, width, size);
}

void SymbolView::set(const QString& name, Theme::Role role) {
    if (m_name == name && m_role == role)
        return;
    m_name = name;
    m_role = role;
    update();
}

void SymbolView::setIcon(const QIcon& icon) {
    m_icon = icon;
    update();
}

void SymbolView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!m_icon.isNull())
        return m_icon.paint(&painter, rect());
    Symbols::draw(painter, m_name, Theme::color(m_role), rect(), m_size);
}
