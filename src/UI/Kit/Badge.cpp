#include "UI/Kit/Badge.h"

#include "UI/Kit/Painting.h"

#include <QPainter>

namespace {

constexpr QMargins padding(6, 2, 6, 2);

} // namespace

Badge::Badge(Theme::Role role, QWidget* parent)
    : QLabel(parent)
    , m_role(role) {
    setTextFormat(Qt::PlainText);
    setFont(Theme::font(Theme::TextStyle::caption, QFont::Bold));
    setContentsMargins(padding);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Badge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Painting::drawCard(painter, rect(), height() / 2.0, Theme::tileColor(m_role, 0.85), Qt::transparent);
    painter.setFont(font());
    painter.setPen(Qt::white);
    Painting::drawTabular(painter, rect(), Qt::AlignHCenter, text());
}
