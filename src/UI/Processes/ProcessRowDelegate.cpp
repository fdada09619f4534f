#include "UI/Processes/ProcessRowDelegate.h"

#include "Core/Formatters.h"
#include "UI/Kit/TableView.h"
#include "UI/Processes/ProcessNamePainter.h"
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

using ProcessNamePainter::cellPadding;
constexpr int buttonSide = ProcessColumn::buttonSide;
constexpr int buttonSymbol = 17;
constexpr int lockSymbol = 13;

const ProcessTableModel& modelOf(const QModelIndex& index) {
    return *static_cast<const ProcessTableModel*>(index.model());
}

/// Returns where a button is in a layout from left to right.
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

/// Returns whether the pointer, the selection or the keyboard is on the row.
bool isMeant(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    return (option.state & (QStyle::State_MouseOver | QStyle::State_Selected | QStyle::State_HasFocus)) ||
           (view && view->hasFocus() && view->currentIndex().row() == index.row());
}

void paintButtons(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const ProcessTableModel& model = modelOf(index);
    const ProcessTableRow& row = model.row(index.row());
    if (!row.isGone && model.protectionOf(row)) {
        Symbols::draw(painter, QStringLiteral("lock.fill"), Theme::color(Role::secondaryText),
                      buttonRect(option.rect, 0), lockSymbol);
        return;
    }
    const QPointF pointer =
        Painting::mirrored(option.widget ? option.widget->mapFromGlobal(QCursor::pos()) : QPoint(-1, -1),
                           option.rect, option.direction);
    int position = 0;
    for (const RowAction action : model.buttonsOf(row)) {
        const QRect button = buttonRect(option.rect, position++);
        if ((option.state & QStyle::State_MouseOver) && QRectF(button).contains(pointer))
            Painting::drawCard(painter, button, Theme::controlRadius, Theme::color(Role::hoverFill),
                               Qt::transparent);
        Symbols::draw(painter, symbolOf(action), Theme::color(tintOf(action, row)), button, buttonSymbol);
    }
}

} // namespace

void ProcessRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    const Painting::Mirrored mirrored(*painter, option.rect, option.direction);
    TableView::paintGround(*painter, option);
    const ProcessTableModel& model = modelOf(index);
    const ProcessColumn& column = model.columnOf(index);
    const ProcessTableRow& row = model.row(index.row());
    const double opacity = painter->opacity();
    if (row.isGone || row.isLeaving)
        painter->setOpacity(opacity * Theme::disabledOpacity);
    const QRectF area = QRectF(option.rect).adjusted(cellPadding, 0, -cellPadding, 0);
    Painting::setTextStyle(*painter, TextStyle::callout, column.role);
    if (column.kind == Kind::actions) {
        if (isMeant(option, index))
            paintButtons(*painter, option, index);
    } else if (column.kind == Kind::name) {
        ProcessNamePainter::paint(*painter, area, model, row);
    } else if (const QString text = index.data(Qt::DisplayRole).toString(); column.kind == Kind::command) {
        ProcessNamePainter::paintMarked(*painter, area, Qt::ElideRight, text, model.words());
    } else if (column.isFigure()) {
        Painting::drawTabular(*painter, area, Qt::AlignRight, text);
    } else {
        Painting::drawElided(*painter, area, Qt::ElideRight, text);
    }
    painter->setOpacity(opacity);
}

QSize ProcessRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {40, rowHeight};
}

std::optional<ProcessRowDelegate::Pressed> ProcessRowDelegate::hit(const QPoint& position,
                                                                   const QStyleOptionViewItem& option,
                                                                   const QModelIndex& index) {
    const QRect& cell = option.rect;
    const ProcessTableModel& model = modelOf(index);
    const ProcessTableRow& row = model.row(index.row());
    const Kind kind = model.columnOf(index).kind;
    if (kind == Kind::name && row.branch != ProcessTableRow::Branch::none) {
        const QRect sign =
            QStyle::visualRect(option.direction, cell, ProcessNamePainter::signRect(cell, row));
        return sign.contains(position) ? std::optional(Pressed{{}, row, sign}) : std::nullopt;
    }
    if (kind != Kind::actions)
        return std::nullopt;
    int place = 0;
    for (const RowAction action : model.buttonsOf(row)) {
        const QRect button = QStyle::visualRect(option.direction, cell, buttonRect(cell, place++));
        if (button.contains(position))
            return Pressed{action, row, button};
    }
    return std::nullopt;
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
    m_pressed = hit(mouse->pos(), option, index);
    return m_pressed.has_value();
}

void ProcessRowDelegate::release(const QPoint& position) {
    const auto pressed = std::exchange(m_pressed, std::nullopt);
    if (!pressed || !pressed->place.contains(position))
        return;
    if (pressed->action)
        Q_EMIT triggered(*pressed->action, pressed->row);
    else
        Q_EMIT foldToggled(pressed->row);
}

bool ProcessRowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (!index.isValid() || event->type() != QEvent::ToolTip)
        return false;
    const ProcessTableModel& model = modelOf(index);
    const ProcessTableRow& row = model.row(index.row());
    const ProcessColumn& column = model.columnOf(index);
    QString text = column.toolTip ? column.toolTip(row, model.facts()) : QString();
    if (const auto pressable = hit(event->pos(), option, index); pressable && pressable->action)
        text = model.helpOf(*pressable->action, row);
    else if (const auto reason = model.protectionOf(row); reason && column.kind == Kind::actions)
        text = tr("%1 Its menu can end it.").arg(ProtectedProcesses::consequence(*reason));
    QToolTip::showText(event->globalPos(), Formatters::toolTip(text), view);
    return true;
}
