#include "UI/Settings/HistoryTableView.h"

#include "UI/Settings/HistoryRowDelegate.h"

#include <QHeaderView>

namespace {

using Column = HistoryTableModel::Column;

constexpr int detailSection = static_cast<int>(Column::detail);

} // namespace

HistoryTableView::HistoryTableView(HistoryTableModel* rows, QWidget* parent)
    : TableView(tr("Action history"), parent) {
    setModel(rows);
    setItemDelegate(new HistoryRowDelegate(this));
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    for (int section = 0; section < HistoryTableModel::columns; ++section) {
        if (section != detailSection)
            header()->resizeSection(section, HistoryRowDelegate::widthOf(static_cast<Column>(section)));
    }
    header()->setSectionResizeMode(detailSection, QHeaderView::Stretch);
    header()->setSectionResizeMode(static_cast<int>(Column::ok), QHeaderView::Fixed);
    header()->setSortIndicator(static_cast<int>(Column::time), Qt::DescendingOrder);
    setSortingEnabled(true);
    connect(header(), &QHeaderView::sortIndicatorChanged, this, &QTreeView::scrollToTop);
}
