#include "UI/Processes/ProcessTableView.h"

#include "Preferences.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

namespace {

using Column = ProcessTableModel::Column;

int usualWidth(Column column) {
    switch (column) {
    case Column::group:
        return 156;
    case Column::actions:
        return ProcessRowDelegate::actionsWidth();
    case Column::ram:
        return 84;
    default:
        return 62;
    }
}

std::optional<SortBy> sortOf(Column column) {
    switch (column) {
    case Column::name:
        return SortBy::name;
    case Column::cpu:
        return SortBy::cpu;
    case Column::ram:
        return SortBy::ram;
    case Column::idle:
        return SortBy::idle;
    default:
        return std::nullopt;
    }
}

} // namespace

ProcessTableView::ProcessTableView(Preferences& preferences, QWidget* parent)
    : TableView(QStringLiteral("Processes"), parent)
    , m_preferences(preferences)
    , m_rows(new ProcessTableModel(this))
    , m_delegate(new ProcessRowDelegate(this))
    , m_storeLater(preferences.file()) {
    setModel(m_rows);
    setItemDelegate(m_delegate);
    setSelectionMode(ExtendedSelection);
    header()->setSortIndicatorShown(true);
    header()->setSectionsClickable(true);                    // which being put up as a header took back
    header()->setSectionResizeMode(0, QHeaderView::Stretch); // the name has what the others leave
    restoreWidths();
    connect(m_delegate, &ProcessRowDelegate::triggered, this, &ProcessTableView::triggered);
    connect(header(), &QHeaderView::sectionClicked, this, &ProcessTableView::requestSort);
    connect(header(), &QHeaderView::sectionResized, this, [this](int section) {
        if (section > 0) // the first follows the window
            storeWidths();
    });
}

void ProcessTableView::show(QList<ProcessTableRow> rows, bool isGrouped) {
    if (isGrouped != m_rows->isGrouped()) {
        m_rows->setGrouped(isGrouped);
        header()->setSectionResizeMode(0, QHeaderView::Stretch);
        restoreWidths();
    }
    m_rows->replace(std::move(rows));
    scrollToTop();
}

void ProcessTableView::update(QList<ProcessTableRow> rows) {
    const int scrolled = verticalScrollBar()->value();
    m_rows->update(std::move(rows));
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

void ProcessTableView::markSort(SortBy sort) {
    m_sort = sort;
    int marked = -1;
    for (int i = 0; i < m_rows->columnCount() && !m_rows->isGrouped(); ++i) {
        if (sortOf(m_rows->column(i)) == sort)
            marked = i;
    }
    if (m_rows->isGrouped())
        marked = m_rows->indexOf(Column::ram);
    header()->setSortIndicator(marked, Qt::DescendingOrder);
}

void ProcessTableView::requestSort(int section) {
    const auto sort = sortOf(m_rows->column(section));
    if (sort && !m_rows->isGrouped())
        Q_EMIT sortRequested(*sort);
    else
        markSort(m_sort); // the click moved the mark
}

QString ProcessTableView::widthsKey() const {
    return m_rows->isGrouped() ? QStringLiteral("ui.processes.groupedWidths")
                               : QStringLiteral("ui.processes.widths");
}

void ProcessTableView::restoreWidths() {
    m_isRestoring = true;
    const QStringList stored =
        m_preferences.file().text(widthsKey()).value_or(QString()).split(u' ', Qt::SkipEmptyParts);
    for (int i = 0; i < m_rows->columnCount(); ++i) {
        const int width = stored.value(i).toInt();
        constexpr int least = 40;
        constexpr int most = 2000;
        if (i > 0)
            header()->resizeSection(i,
                                    width >= least && width <= most ? width : usualWidth(m_rows->column(i)));
    }
    m_isRestoring = false;
}

void ProcessTableView::storeWidths() {
    if (m_isRestoring)
        return;
    QStringList widths;
    for (int i = 0; i < m_rows->columnCount(); ++i)
        widths.append(QString::number(header()->sectionSize(i)));
    m_storeLater.store(widthsKey(), widths.join(u' '));
}

void ProcessTableView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        m_delegate->release(event->pos());
}

void ProcessTableView::fillMenu(QMenu& menu, const QModelIndex& index) {
    Q_EMIT menuOpens(menu, m_rows->row(index.row()), m_rows->isGrouped());
}
