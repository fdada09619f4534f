#include "UI/Kit/SidebarDelegate.h"

#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QPainter>

using Theme::Role;
using Theme::TextStyle;

namespace {

constexpr Theme::Length sidebarRowHeight{34};
constexpr int inset = 10;
constexpr int symbolInset = 8;

QColor rowFill(QStyle::State state) {
    if (state & QStyle::State_Selected)
        return Theme::color(Role::accent, 0.16);
    return state & QStyle::State_MouseOver ? Theme::color(Role::hoverFill) : QColor(Qt::transparent);
}

} // namespace

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    const Painting::Mirrored mirrored(*painter, option.rect, option.direction);
    const bool selected = option.state & QStyle::State_Selected;
    const QRectF row = QRectF(option.rect).adjusted(inset, 1, -inset, -1);
    Painting::drawCard(*painter, row, Theme::controlRadius, rowFill(option.state));
    if (selected && option.state & QStyle::State_HasFocus && option.state & QStyle::State_KeyboardFocusChange)
        Painting::drawFocusRing(*painter, row, Theme::controlRadius);

    QRectF line = row.adjusted(symbolInset, 0, -symbolInset, 0);
    const QRectF icon(line.left(), line.top(), Theme::iconColumn, line.height());
    const QColor tint = Theme::color(selected ? Role::accent : Role::secondaryText);
    Symbols::draw(*painter, index.data(symbolRole).toString(), tint, icon, Theme::iconSize);

    line.setLeft(icon.right() + 8);
    Painting::setTextStyle(*painter, TextStyle::body, Role::primaryText,
                           selected ? QFont::DemiBold : QFont::Normal);
    Painting::drawElided(*painter, line, Qt::ElideRight, index.data(Qt::DisplayRole).toString());
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {0, sidebarRowHeight};
}
