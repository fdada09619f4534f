#include "UI/Kit/TableView.h"

#include "UI/Kit/ScrollingPage.h"
#include "UI/Style/Painting.h"
#include "UI/Style/Theme.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include <algorithm>

using Theme::Role;

namespace {

constexpr Theme::Length tableHeaderHeight{28};
constexpr Theme::Length minSection{40};

} // namespace

TableView::TableView(const QString& name, QWidget* parent)
    : QTreeView(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setAccessibleName(name);
    useSlimScrollBar(this);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    Theme::fixHeight(header(), tableHeaderHeight);
    header()->setMinimumSectionSize(minSection);
    QPalette clear = palette(); // the delegate draws the background of selected rows
    clear.setColor(QPalette::Highlight, Qt::transparent);
    setPalette(clear);
}

void TableView::paintGround(QPainter& painter, const QStyleOptionViewItem& option) {
    if (option.state & QStyle::State_Selected)
        painter.fillRect(option.rect, Theme::color(Role::accent, 0.16));
    else if (option.state & (QStyle::State_MouseOver | QStyle::State_HasFocus))
        painter.fillRect(option.rect, Theme::color(Role::hoverFill));
}

void TableView::setEmptyText(const QString& text) {
    m_emptyText = text;
}

void TableView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (m_emptyText.isEmpty() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    Painting::setTextStyle(painter, Theme::TextStyle::callout, Role::secondaryText);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
    if (hasFocus())
        Painting::drawFocusRing(painter, viewport()->rect(), Theme::controlRadius);
}

void TableView::keyPressEvent(QKeyEvent* event) {
    const bool opensMenu = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else if (opensMenu && currentIndex().isValid())
        openMenu(currentIndex(), viewport()->mapToGlobal(visualRect(currentIndex()).center()));
    else
        QTreeView::keyPressEvent(event);
}

void TableView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    if (index.isValid())
        openMenu(index, byKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}

void TableView::openMenu(const QModelIndex& index, const QPoint& at) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, index);
    menu->addSeparator();
    menu->addAction(tr("Copy"), this, &TableView::copySelection);
    menu->popup(at);
}

void TableView::fillMenu(QMenu&, const QModelIndex&) {}

/// Copies the texts of the selected rows, a line for each, with tabs between the cells.
void TableView::copySelection() const {
    QModelIndexList selected = selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    QStringList lines;
    for (const QModelIndex& index : selected) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column)
            cells.append(index.siblingAtColumn(column).data().toString());
        if (cells.last().isEmpty()) // the column of buttons
            cells.removeLast();
        lines.append(cells.join(u'\t'));
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}
