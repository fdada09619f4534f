#include "UI/Style/MenuDrawing.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

using Theme::Role;

namespace MenuDrawing {
namespace {

constexpr int edge = 4; ///< between the row's ground and the menu's border
constexpr int rowPadding = 8;
constexpr int separatorHeight = 9;
constexpr int shortcutGap = 24;
constexpr Theme::Length markColumn{20};
constexpr Theme::Length markSize{14};

bool isSeparator(const QStyleOptionMenuItem& item) {
    return item.menuItemType == QStyleOptionMenuItem::Separator;
}

bool hasMarks(const QStyleOptionMenuItem& item) {
    return item.menuHasCheckableItems || item.checkType != QStyleOptionMenuItem::NotCheckable;
}

void drawMark(QPainter& painter, const QStyleOptionMenuItem& item, const QRectF& column, const QColor& ink) {
    if (item.checked)
        Symbols::draw(painter, QStringLiteral("checkmark"), ink, column, markSize);
}

void drawIcon(QPainter& painter, const QIcon& icon, const QRectF& area) {
    const Painting::Upright upright(painter, area);
    icon.paint(&painter, area.toRect());
}

/// `side` is that of a layout from left to right.
void drawText(QPainter& painter, const QRectF& line, Qt::AlignmentFlag side, const QString& text) {
    constexpr int flags = Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic;
    const Painting::Upright upright(painter, line);
    const Qt::AlignmentFlag other = side == Qt::AlignLeft ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(line, flags | (upright.isMirrored() ? other : side), text);
}

} // namespace

void drawItem(QPainter& painter, const QStyleOptionMenuItem& item) {
    const Painting::Mirrored mirrored(painter, item.rect, item.direction);
    const QRectF row = QRectF(item.rect).adjusted(edge, 1, -edge, -1);
    if (isSeparator(item)) {
        painter.fillRect(QRectF(row.left(), qRound(row.center().y()), row.width(), 1),
                         Theme::color(Role::separator));
        return;
    }
    const bool isEnabled = item.state & QStyle::State_Enabled;
    if (isEnabled && item.state & QStyle::State_Selected)
        Painting::drawCard(painter, row, Theme::controlRadius - 2, Theme::color(Role::accent, 0.16));
    const QColor ink = Theme::color(Role::primaryText, isEnabled ? 1 : Theme::disabledOpacity);
    QRectF line = row.adjusted(rowPadding, 0, -rowPadding, 0);
    if (hasMarks(item)) {
        drawMark(painter, item, QRectF(line.left(), line.top(), markSize, line.height()), ink);
        line.setLeft(line.left() + markColumn);
    }
    painter.setPen(ink);
    painter.setFont(item.font);
    if (!item.icon.isNull()) {
        drawIcon(painter, item.icon, QRectF(line.left(), line.top(), markSize, line.height()));
        line.setLeft(line.left() + markColumn);
    }
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        Symbols::draw(painter, QStringLiteral("chevron.right"), ink, Painting::takeRight(line, markSize),
                      markSize);
    const qsizetype tab = item.text.indexOf(u'\t');
    drawText(painter, line, Qt::AlignLeft, item.text.left(tab));
    if (tab < 0)
        return;
    painter.setPen(Theme::color(Role::secondaryText, isEnabled ? 1 : Theme::disabledOpacity));
    drawText(painter, line, Qt::AlignRight, item.text.mid(tab + 1));
}

QSize itemSize(const QStyleOptionMenuItem& item, const QSize& contents) {
    if (isSeparator(item))
        return {contents.width(), separatorHeight};
    int width = contents.width() + 2 * (edge + rowPadding);
    if (hasMarks(item))
        width += markColumn;
    if (!item.icon.isNull())
        width += markColumn;
    if (item.text.contains(u'\t'))
        width += shortcutGap;
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        width += markColumn;
    return {width, std::max<int>(Theme::controlHeight, contents.height() + 2)};
}

} // namespace MenuDrawing
