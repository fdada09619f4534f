#include "UI/Processes/ProcessRowDelegate.h"

#include "Core/Formatters.h"
#include "UI/Kit/TableView.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Symbols.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

using Theme::Role;
using Theme::TextStyle;

namespace {

using Kind = ProcessColumn::Kind;

constexpr int cellPadding = 8;
constexpr int buttonSide = ProcessColumn::buttonSide;
constexpr int buttonSymbol = 17;
constexpr int rowBadgeHeight = 14;
constexpr int rowBadgePadding = 5;

const ProcessTableModel& modelOf(const QModelIndex& index) {
    return *static_cast<const ProcessTableModel*>(index.model());
}

QRect buttonRect(const QRect& cell, int position) {
    return {cell.left() + cellPadding / 2 + position * buttonSide, cell.center().y() - buttonSide / 2 + 1,
            buttonSide, buttonSide};
}

QString symbolOf(RowAction action) {
    constexpr QStringView symbols[] = {u"stop.circle", u"xmark.octagon", u"bolt.fill"};
    return symbols[static_cast<int>(action)].toString();
}

Role tintOf(RowAction action, const ProcessTableRow& row) {
    if (action == RowAction::forceKill)
        return Role::red;
    return action == RowAction::sweep && row.sameName > 1 ? Role::orange : Role::secondaryText;
}

void paintButtons(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const ProcessTableModel& model = modelOf(index);
    const ProcessTableRow& row = model.row(index.row());
    const QPoint pointer = option.widget ? option.widget->mapFromGlobal(QCursor::pos()) : QPoint(-1, -1);
    int position = 0;
    for (const RowAction action : ProcessRowDelegate::actionsOf(row, model.isGrouped())) {
        const QRect button = buttonRect(option.rect, position++);
        if ((option.state & QStyle::State_MouseOver) && button.contains(pointer))
            Painting::drawCard(painter, button, Theme::controlRadius, Theme::color(Role::hoverFill),
                               Qt::transparent);
        Symbols::draw(painter, symbolOf(action), Theme::color(tintOf(action, row)), button, buttonSymbol);
    }
}

/// Draws "×12" behind the name. Returns the part of `area` before it.
QRectF paintBadge(QPainter& painter, QRectF area, const QString& name, qsizetype count) {
    const QString text = QStringLiteral("×%1").arg(count);
    const QFont font = Theme::font(TextStyle::caption2, QFont::Bold);
    const double width = Painting::tabularWidth(font, text) + 2 * rowBadgePadding;
    const double nameWidth = QFontMetricsF(painter.font()).horizontalAdvance(name) + 1;
    const double left = std::min(area.left() + nameWidth + cellPadding, area.right() - width);
    const QRectF badge(left, area.center().y() - rowBadgeHeight / 2.0, width, rowBadgeHeight);
    painter.save();
    Painting::drawBadge(painter, badge, Role::orange, font, text);
    painter.restore();
    area.setRight(left - cellPadding / 2.0);
    return area;
}

void paintName(QPainter& painter, QRectF area, const ProcessTableModel& model, const ProcessTableRow& row,
               const QString& text) {
    if (model.isGrouped()) {
        const QRectF icon(area.left(), area.top(), Theme::iconSize, area.height());
        Symbols::draw(painter, groupSymbol(row.first.group), Theme::color(Role::secondaryText), icon, 15);
        area.setLeft(icon.right() + cellPadding);
        if (row.processes.size() > 1)
            area = paintBadge(painter, area, text, row.processes.size());
    }
    Painting::drawElided(painter, area, Qt::ElideMiddle, text);
}

} // namespace

QList<RowAction> ProcessRowDelegate::actionsOf(const ProcessTableRow& row, bool isGrouped) {
    if (isGrouped)
        return {RowAction::quit, RowAction::sweep};
    if (row.sameName > 1)
        return {RowAction::quit, RowAction::forceKill, RowAction::sweep};
    return {RowAction::quit, RowAction::forceKill};
}

QString ProcessRowDelegate::helpOf(RowAction action, const ProcessTableRow& row, bool isGrouped) {
    if (action == RowAction::forceKill)
        return tr("Force kill one");
    if (action == RowAction::quit)
        return isGrouped ? tr("Quit all %1").arg(row.processes.size()) : tr("Quit one");
    if (isGrouped)
        return tr("Nuke all %1 (with confirm)").arg(row.processes.size());
    return tr("Nuke all %1 “%2” processes").arg(row.sameName).arg(Formatters::visible(row.first.name));
}

void ProcessRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    TableView::paintGround(*painter, option);
    const ProcessTableModel& model = modelOf(index);
    const ProcessColumn& column = model.columnOf(index);
    if (column.kind == Kind::actions) {
        paintButtons(*painter, option, index);
        return;
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    const QRectF area = QRectF(option.rect).adjusted(cellPadding, 0, -cellPadding, 0);
    Painting::setTextStyle(*painter, TextStyle::callout, column.role);
    if (column.kind == Kind::name)
        paintName(*painter, area, model, model.row(index.row()), text);
    else if (column.isFigure())
        Painting::drawTabular(*painter, area, Qt::AlignRight, text);
    else
        Painting::drawElided(*painter, area, Qt::ElideRight, text);
}

QSize ProcessRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {40, rowHeight};
}

bool ProcessRowDelegate::editorEvent(QEvent* event, QAbstractItemModel*, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) {
    if (event->type() == QEvent::MouseButtonRelease)
        return m_pressed.has_value();
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton)
        return false;
    const ProcessTableModel& model = modelOf(index);
    m_pressed.reset();
    if (model.columnOf(index).kind != Kind::actions)
        return false;
    const ProcessTableRow& row = model.row(index.row());
    int position = 0;
    for (const RowAction action : actionsOf(row, model.isGrouped())) {
        const QRect button = buttonRect(option.rect, position++);
        if (button.contains(mouse->pos()))
            m_pressed = Pressed{action, row, button};
    }
    return m_pressed.has_value();
}

void ProcessRowDelegate::release(const QPoint& position) {
    const auto pressed = std::exchange(m_pressed, std::nullopt);
    if (pressed && pressed->button.contains(position))
        Q_EMIT triggered(pressed->action, pressed->row);
}

bool ProcessRowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (!index.isValid() || event->type() != QEvent::ToolTip)
        return false;
    const ProcessTableModel& model = modelOf(index);
    const ProcessTableRow& row = model.row(index.row());
    const ProcessColumn& column = model.columnOf(index);
    QString text = column.toolTip ? column.toolTip(row) : QString();
    int position = 0;
    if (column.kind == Kind::actions) {
        for (const RowAction action : actionsOf(row, model.isGrouped())) {
            if (buttonRect(option.rect, position++).contains(event->pos()))
                text = helpOf(action, row, model.isGrouped());
        }
    }
    QToolTip::showText(event->globalPos(), Formatters::toolTip(text), view);
    return true;
}
