#include "UI/Kit/TextField.h"

#include "UI/Kit/Painting.h"

#include <QPainter>

using Theme::Role;

namespace {

constexpr int padding = 6;

} // namespace

TextField::TextField(QWidget* parent)
    : QLineEdit(parent) {
    setFrame(false);
    setFixedHeight(Theme::controlHeight);
    setFont(Theme::font(Theme::TextStyle::body));
    setTextMargins(padding, 0, padding, 0);
    QPalette clear = palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    setPalette(clear);
}

void TextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        Painting::drawCard(painter, rect(), Theme::controlRadius, Theme::color(Role::cardFill),
                           Theme::color(Role::cardBorder));
        drawLead(painter);
        if (hasFocus())
            Painting::drawFocusRing(painter, rect(), Theme::controlRadius);
    }
    QLineEdit::paintEvent(event);
}
