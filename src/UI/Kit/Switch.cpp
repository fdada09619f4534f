#include "UI/Kit/Switch.h"

#include "UI/Kit/Painting.h"

#include <QPainter>

using Theme::Role;

namespace {

constexpr QSize track(34, 20);
constexpr int knobInset = 2;
constexpr int textGap = 8;

} // namespace

Switch::Switch(const QString& text, QWidget* parent)
    : QAbstractButton(parent) {
    setText(text);
    setCheckable(true);
    setFont(Theme::font(Theme::TextStyle::body));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Switch::setSpread() {
    m_isSpread = true;
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    update();
}

QSize Switch::sizeHint() const {
    const int label = text().isEmpty() ? 0 : textGap + fontMetrics().horizontalAdvance(text()) + 2;
    return {track.width() + label, Theme::smallControlHeight};
}

void Switch::drawTrack(QPainter& painter, const QRectF& ground, double opacity) const {
    const double radius = track.height() / 2.0;
    Painting::drawCard(painter, ground, radius,
                       isChecked() ? Theme::tileColor(Role::green, opacity)
                                   : Theme::color(Role::gray, 0.45 * opacity),
                       Qt::transparent);
    const double side = track.height() - 2 * knobInset;
    const double x = isChecked() ? ground.right() - knobInset - side : ground.left() + knobInset;
    Painting::drawCard(painter, QRectF(x, ground.top() + knobInset, side, side), side / 2, Qt::white,
                       Qt::transparent);
    if (hasFocus())
        Painting::drawFocusRing(painter, ground, radius);
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double opacity = isEnabled() ? 1 : 0.45;
    const int room = track.width() + textGap;
    const double left = m_isSpread ? width() - track.width() : 0;
    drawTrack(painter, QRectF(QPointF(left, (height() - track.height()) / 2.0), track), opacity);
    painter.setFont(font());
    painter.setPen(Theme::color(Role::primaryText, opacity));
    const QRectF line =
        m_isSpread ? QRectF(rect()).adjusted(0, 0, -room, 0) : QRectF(rect()).adjusted(room, 0, 0, 0);
    Painting::drawElided(painter, line, Qt::ElideRight, text());
}
