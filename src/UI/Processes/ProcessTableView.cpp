#include "UI/Processes/ProcessTableView.h"

#include "Preferences.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

const QString shownKey = u"ui.processes.shownColumns"_s;

QString widthsKey(bool isGrouped) {
    return isGrouped ? u"ui.processes.groupedColumns"_s : u"ui.processes.columns"_s;
}

/// Moves the widths of older versions, which stored them by the position of these columns.
void migrateWidths(SettingsFile& file) {
    ColumnWidths::migrate(
        file, u"ui.processes.widths"_s, widthsKey(false),
        {u"name"_s, u"group"_s, u"pid"_s, u"cpu"_s, u"ram"_s, u"threads"_s, u"idle"_s, u"actions"_s});
    ColumnWidths::migrate(file, u"ui.processes.groupedWidths"_s, widthsKey(true),
                          {u"name"_s, u"group"_s, u"cpu"_s, u"ram"_s, u"procs"_s, u"actions"_s});
}

} // namespace

ProcessTableView::ProcessTableView(Preferences& preferences, QWidget* parent)
    : TableView(tr("Processes"), parent)
    , m_rows(new ProcessTableModel(this))
    , m_delegate(new ProcessRowDelegate(this))
    , m_file(preferences.file())
    , m_widths(*header(), m_file)
    , m_chosen(m_file.text(shownKey).value_or(QString()).split(u' ', Qt::SkipEmptyParts)) {
    setModel(m_rows);
    setItemDelegate(m_delegate);
    setSelectionMode(ExtendedSelection);
    header()->setSortIndicatorShown(true);
    header()->setSectionsClickable(true);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    migrateWidths(m_file);
    setColumns(false);
    connect(m_delegate, &ProcessRowDelegate::triggered, this, &ProcessTableView::triggered);
    connect(header(), &QHeaderView::sectionClicked, this, &ProcessTableView::requestSort);
    connect(header(), &QHeaderView::customContextMenuRequested, this, [this](QPoint at) {
        QMenu menu;
        fillColumnsMenu(menu);
        menu.exec(header()->mapToGlobal(at));
    });
}

void ProcessTableView::fillColumnsMenu(QMenu& menu) {
    for (const ProcessColumn* column : ProcessColumns::optional()) {
        const QString id = column->id.toString();
        QAction* choice = menu.addAction(QCoreApplication::translate("Columns", column->title), this,
                                         [this, id](bool isShown) { chooseColumn(id, isShown); });
        choice->setCheckable(true);
        choice->setChecked(m_chosen.contains(id));
    }
}

void ProcessTableView::chooseColumn(const QString& id, bool isShown) {
    m_chosen.removeAll(id);
    if (isShown)
        m_chosen.append(id);
    m_file.store(shownKey, m_chosen.join(u' '));
    setColumns(m_rows->isGrouped());
    Q_EMIT columnsChanged();
}

void ProcessTableView::setColumns(bool isGrouped) {
    m_rows->setColumns(isGrouped, m_chosen);
    restoreWidths();
}

QList<qint32> ProcessTableView::pidsInView() const {
    QList<qint32> pids;
    for (QModelIndex index = indexAt({0, 0});
         index.isValid() && visualRect(index).top() < viewport()->height(); index = indexBelow(index)) {
        const ProcessTableRow& row = m_rows->row(index.row());
        pids.append(row.first.pid);
        for (const ProcSample& process : row.processes)
            pids.append(process.pid);
    }
    return pids;
}

void ProcessTableView::show(QList<ProcessTableRow> rows, bool isGrouped) {
    if (isGrouped != m_rows->isGrouped())
        setColumns(isGrouped);
    m_rows->replace(std::move(rows));
    scrollToTop();
}

void ProcessTableView::update(QList<ProcessTableRow> rows) {
    const int scrolled = verticalScrollBar()->value();
    m_rows->update(std::move(rows));
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

void ProcessTableView::markSort(const QString& column) {
    m_sort = column;
    const QStringView marked = m_rows->isGrouped() ? u"ram" : QStringView(column);
    const int section = static_cast<int>(m_rows->columns().indexOf(ProcessColumns::withId(marked)));
    header()->setSortIndicator(section, Qt::DescendingOrder);
}

void ProcessTableView::requestSort(int section) {
    const ProcessColumn& column = *m_rows->columns()[section];
    if (column.order.sort && !m_rows->isGrouped())
        Q_EMIT sortRequested(column.id.toString());
    else
        markSort(m_sort); // the click moved the mark
}

void ProcessTableView::restoreWidths() {
    QList<ColumnWidths::Column> columns;
    for (const ProcessColumn* column : m_rows->columns())
        columns.append({column->id.toString(), column->width});
    header()->setSectionResizeMode(0, QHeaderView::Stretch); // the name takes the remaining width
    m_widths.restore(widthsKey(m_rows->isGrouped()), columns);
}

void ProcessTableView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        m_delegate->release(event->pos());
}

void ProcessTableView::fillMenu(QMenu& menu, const QModelIndex& index) {
    Q_EMIT menuOpens(menu, m_rows->row(index.row()), m_rows->isGrouped());
}
