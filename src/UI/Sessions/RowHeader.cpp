#include "UI/Sessions/RowHeader.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length chevronSize{12};

double upperHeight() {
    return Painting::lineHeight(Theme::font(TextStyle::body));
}

double lowerHeight() {
    return Painting::lineHeight(Theme::font(TextStyle::caption));
}

/// Returns where the two lines begin in a cell.
double top(const QRectF& cell) {
    return qRound(cell.center().y() - (upperHeight() + Theme::textGap + lowerHeight()) / 2);
}

} // namespace

RowHeader::RowHeader(QWidget* parent)
    : QAbstractButton(parent) {
    Theme::fixHeight(this, height);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void RowHeader::setExpanded(bool expanded) {
    if (expanded == m_expanded)
        return;
    m_expanded = expanded;
    describeState();
    update();
}

void RowHeader::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Right:
    case Qt::Key_Left:
        if (m_expanded == (event->key() == Qt::Key_Left))
            click();
        break;
    case Qt::Key_Down:
        Q_EMIT stepRequested(1);
        break;
    case Qt::Key_Up:
        Q_EMIT stepRequested(-1);
        break;
    case Qt::Key_Delete:
        Q_EMIT endRequested();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

QRectF RowHeader::paintGround(QPainter& painter) const {
    const QRectF ground = QRectF(rect()).adjusted(2, 2, -2, -2);
    QStyleOption option;
    option.initFrom(this);
    option.state.setFlag(QStyle::State_Sunken, isDown());
    Painting::drawFeedback(painter, ground, option.state, Theme::controlRadius);
    QRectF line = ground.adjusted(Theme::cardPadding - 2, 0, 0, 0);
    const auto chevron = m_expanded ? QStringLiteral("chevron.down") : QStringLiteral("chevron.right");
    Symbols::draw(painter, chevron, Theme::color(Role::secondaryText),
                  QRectF(line.left(), line.top(), chevronSize, line.height()), chevronSize);
    line.setLeft(line.left() + chevronColumn);
    return line;
}

QRectF RowHeader::upperLine(const QRectF& cell) {
    return {cell.left(), top(cell), cell.width(), upperHeight()};
}

QRectF RowHeader::lowerLine(const QRectF& cell) {
    return {cell.left(), top(cell) + upperHeight() + Theme::textGap, cell.width(), lowerHeight()};
}
