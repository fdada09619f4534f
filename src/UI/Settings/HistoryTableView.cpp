#include "UI/Settings/HistoryTableView.h"

#include "UI/Kit/SlimScrollBar.h"
#include "UI/Kit/TableHeader.h"
#include "UI/Settings/HistoryRowDelegate.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Column = HistoryTableModel::Column;

constexpr int detailSection = static_cast<int>(Column::detail);

} // namespace

HistoryTableView::HistoryTableView(HistoryTableModel* rows, QWidget* parent)
    : QTreeView(parent) {
    auto* head = new TableHeader(this);
    setHeader(head);
    setModel(rows);
    setItemDelegate(new HistoryRowDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setAccessibleName(u"Action history"_s);
    SlimScrollBar::install(this);
    head->setStretchLastSection(false);
    for (int section = 0; section < HistoryTableModel::columns; ++section) {
        if (section != detailSection)
            head->resizeSection(section, HistoryRowDelegate::widthOf(static_cast<Column>(section)));
    }
    head->setSectionResizeMode(detailSection, QHeaderView::Stretch);
    head->setSectionResizeMode(static_cast<int>(Column::ok), QHeaderView::Fixed);
    head->setSortIndicator(static_cast<int>(Column::time), Qt::DescendingOrder);
    setSortingEnabled(true);
    connect(head, &QHeaderView::sortIndicatorChanged, this, &QTreeView::scrollToTop);
    QPalette clear = palette(); // the delegate draws the ground of selected rows
    clear.setColor(QPalette::Highlight, Qt::transparent);
    setPalette(clear);
}

/// What is shown of the selected rows, a line each, the cells apart by TABs.
void HistoryTableView::copySelection() const {
    QModelIndexList selected = selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    QStringList lines;
    for (const QModelIndex& index : selected) {
        QStringList cells;
        for (int column = 0; column < HistoryTableModel::columns; ++column)
            cells.append(index.siblingAtColumn(column).data().toString());
        lines.append(cells.join(u'\t'));
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void HistoryTableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copySelection();
    else
        QTreeView::keyPressEvent(event);
}

void HistoryTableView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(u"Copy"_s, this, &HistoryTableView::copySelection);
    menu->popup(byKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}
