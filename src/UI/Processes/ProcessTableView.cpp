#include "UI/Processes/ProcessTableView.h"

#include "Preferences.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

using Branch = ProcessTableRow::Branch;

const QString optionalKey = u"ui.processes.shownColumns"_s;
const QString hiddenKey = u"ui.processes.hiddenColumns"_s;

QString widthsKey(bool isGrouped) {
    return isGrouped ? u"ui.processes.groupedColumns"_s : u"ui.processes.columns"_s;
}

QString orderKey(bool isGrouped) {
    return isGrouped ? u"ui.processes.groupedOrder"_s : u"ui.processes.order"_s;
}

/// Moves the widths of older versions, which stored them by the position of these columns.
void migrateWidths(SettingsFile& file) {
    ColumnWidths::migrate(
        file, u"ui.processes.widths"_s, widthsKey(false),
        {u"name"_s, u"group"_s, u"pid"_s, u"cpu"_s, u"ram"_s, u"threads"_s, u"idle"_s, u"actions"_s});
    ColumnWidths::migrate(file, u"ui.processes.groupedWidths"_s, widthsKey(true),
                          {u"name"_s, u"group"_s, u"cpu"_s, u"ram"_s, u"procs"_s, u"actions"_s});
}

/// Returns the columns whose visibility the user has changed: the optional ones on show, and the others that
/// are hidden.
QStringList toggledIn(const SettingsFile& file) {
    const auto idsIn = [&file](const QString& key) {
        return file.text(key).value_or(QString()).split(u' ', Qt::SkipEmptyParts);
    };
    QStringList toggled;
    for (const QString& id : idsIn(optionalKey)) {
        const ProcessColumn* column = ProcessColumns::withId(id);
        if (column && column->isOptional)
            toggled.append(id);
    }
    for (const QString& id : idsIn(hiddenKey)) {
        const ProcessColumn* column = ProcessColumns::withId(id);
        if (column && !column->isOptional)
            toggled.append(id);
    }
    return toggled;
}

void storeToggled(SettingsFile& file, const QStringList& toggled) {
    QStringList optional;
    QStringList hidden;
    for (const QString& id : toggled)
        (ProcessColumns::withId(id)->isOptional ? optional : hidden).append(id);
    file.store(optionalKey, optional.join(u' '));
    file.store(hiddenKey, hidden.join(u' '));
}

} // namespace

ProcessTableView::ProcessTableView(Preferences& preferences, QWidget* parent)
    : TableView(tr("Processes"), parent)
    , m_rows(new ProcessTableModel(this))
    , m_delegate(new ProcessRowDelegate(this))
    , m_file(preferences.file())
    , m_widths(*header(), m_file)
    , m_order(*header(), m_file)
    , m_toggled(toggledIn(m_file)) {
    setModel(m_rows);
    setItemDelegate(m_delegate);
    setSelectionMode(ExtendedSelection);
    header()->setSortIndicatorShown(true);
    header()->setSectionsClickable(true);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    migrateWidths(m_file);
    setColumns(ProcessListing::flat);
    connect(m_delegate, &ProcessRowDelegate::triggered, this, &ProcessTableView::triggered);
    connect(m_delegate, &ProcessRowDelegate::foldToggled, this, &ProcessTableView::foldToggled);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        const ProcessColumn& column = *m_rows->columns()[section];
        if (column.isSortable())
            Q_EMIT sortRequested(column.id.toString());
        else
            markSort(m_sort, m_isAscending); // the click moved the mark
    });
    connect(header(), &QHeaderView::customContextMenuRequested, this, &ProcessTableView::openHeadMenu);
}

void ProcessTableView::openHeadMenu(const QPoint& at) {
    QMenu menu;
    const int section = header()->logicalIndexAt(at);
    if (section > 0) {
        const ProcessColumn& column = *m_rows->columns()[section];
        fillMoves(menu, section);
        if (!column.isFixed)
            menu.addAction(tr("Hide %1").arg(ProcessColumns::title(column)), this,
                           [this, id = column.id.toString()] { toggleColumn(id); });
        menu.addSeparator();
    }
    fillColumnsMenu(menu);
    menu.exec(header()->mapToGlobal(at));
}

void ProcessTableView::fillColumnsMenu(QMenu& menu) {
    const QList<const ProcessColumn*>& onShow = m_rows->columns();
    for (const ProcessColumn* column : ProcessColumns::choices(m_rows->isGrouped())) {
        QAction* choice = menu.addAction(ProcessColumns::title(*column), this,
                                         [this, id = column->id.toString()] { toggleColumn(id); });
        choice->setCheckable(true);
        choice->setChecked(onShow.contains(column));
    }
    menu.addSeparator();
    auto* moves = menu.addMenu(tr("Move column"));
    for (int place = 1; place < onShow.size(); ++place) {
        const int section = header()->logicalIndex(place);
        fillMoves(*moves->addMenu(ProcessColumns::title(*onShow[section])), section);
    }
    menu.addAction(tr("Reset columns"), this, [this] {
        m_toggled.clear();
        storeToggled(m_file, m_toggled);
        m_file.store(orderKey(m_rows->isGrouped()), {});
        m_file.store(widthsKey(m_rows->isGrouped()), {});
        setColumns(m_rows->listing());
        Q_EMIT columnsChanged();
    });
}

void ProcessTableView::fillMoves(QMenu& menu, int section) {
    const int toTheLeft = layoutDirection() == Qt::RightToLeft ? 1 : -1;
    for (const auto& [text, by] :
         {std::pair(tr("Move left"), toTheLeft), std::pair(tr("Move right"), -toTheLeft)}) {
        QAction* move = menu.addAction(text, this, [this, section, by = by] { m_order.move(section, by); });
        move->setEnabled(m_order.canMove(section, by));
    }
}

void ProcessTableView::toggleColumn(const QString& id) {
    if (m_toggled.removeAll(id) == 0)
        m_toggled.append(id);
    storeToggled(m_file, m_toggled);
    setColumns(m_rows->listing());
    Q_EMIT columnsChanged();
}

void ProcessTableView::setColumns(ProcessListing listing) {
    m_rows->setColumns(listing, m_toggled);
    restoreWidths();
}

void ProcessTableView::restoreWidths() {
    QList<ColumnWidths::Column> columns;
    QStringList ids;
    for (const ProcessColumn* column : m_rows->columns()) {
        ids.append(column->id.toString());
        columns.append({ids.last(), Theme::scaled(column->width)});
    }
    m_order.restore(orderKey(m_rows->isGrouped()), ids);
    header()->setSectionResizeMode(0, QHeaderView::Stretch); // the name takes the remaining width
    m_widths.restore(widthsKey(m_rows->isGrouped()), columns);
    fitColumns();
}

void ProcessTableView::setCompact(bool isCompact) {
    m_isCompact = isCompact;
    fitColumns();
}

/// Hides columns, from the one that matters least, until the name has room.
void ProcessTableView::fitColumns() {
    constexpr int leastNameWidth = 140;
    constexpr QStringView dispensable[] = {u"group", u"threads", u"idle", u"pid"};
    const auto sectionOf = [this](QStringView id) {
        return static_cast<int>(m_rows->columns().indexOf(ProcessColumns::withId(id)));
    };
    for (const QStringView id : dispensable) {
        if (const int section = sectionOf(id); section > 0)
            header()->setSectionHidden(section, false);
    }
    int room = viewport()->width() - leastNameWidth;
    for (int section = 1; section < header()->count(); ++section)
        room -= header()->sectionSize(section);
    for (const QStringView id : dispensable) {
        const int section = sectionOf(id);
        if (!m_isCompact || room >= 0 || section < 1)
            continue;
        room += header()->sectionSize(section);
        header()->setSectionHidden(section, true);
    }
}

void ProcessTableView::resizeEvent(QResizeEvent* event) {
    TableView::resizeEvent(event);
    if (m_isCompact)
        fitColumns();
}

void ProcessTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    TableView::currentChanged(current, previous);
    if (!m_isUpdating)
        Q_EMIT currentMoved();
}

const ProcSample* ProcessTableView::current() const {
    return currentIndex().isValid() ? &m_rows->row(currentIndex().row()).first : nullptr;
}

bool ProcessTableView::select(const ProcSample& process) {
    for (int place = 0; place < m_rows->rowCount(); ++place) {
        if (m_rows->row(place).first.identity() == process.identity()) {
            setCurrentIndex(m_rows->index(place, 0));
            return true;
        }
    }
    return false;
}

QList<ProcSample> ProcessTableView::processesInView() const {
    QList<ProcSample> processes;
    for (QModelIndex index = indexAt({0, 0});
         index.isValid() && visualRect(index).top() < viewport()->height(); index = indexBelow(index)) {
        const ProcessTableRow& row = m_rows->row(index.row());
        if (row.processes.isEmpty())
            processes.append(row.first);
        processes.append(row.processes);
    }
    return processes;
}

bool ProcessTableView::shows(ProcessColumn::Need need) const {
    const auto isNeedy = [need](const ProcessColumn* column) { return column->need == need; };
    return std::ranges::any_of(m_rows->columns(), isNeedy);
}

QList<ProcessTableRow> ProcessTableView::selectedRows() const {
    QModelIndexList selected = selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    QList<ProcessTableRow> rows;
    for (const QModelIndex& index : std::as_const(selected))
        rows.append(m_rows->row(index.row()));
    return rows;
}

void ProcessTableView::show(QList<ProcessTableRow> rows, ProcessListing listing) {
    if (listing != m_rows->listing())
        setColumns(listing);
    m_rows->replace(std::move(rows));
    scrollToTop();
}

void ProcessTableView::update(QList<ProcessTableRow> rows) {
    const int scrolled = verticalScrollBar()->value();
    m_isUpdating = true; // the end of a process moves the current row, which no person did
    m_rows->update(withGone(std::move(rows)));
    m_isUpdating = false;
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

int ProcessTableView::heldRow() const {
    const QPoint pointer = viewport()->mapFromGlobal(QCursor::pos());
    const QModelIndex hovered = viewport()->underMouse() ? indexAt(pointer) : QModelIndex();
    const QModelIndex focused = hasFocus() ? currentIndex() : QModelIndex();
    return std::max(hovered.row(), focused.row()); // -1 of an invalid index
}

QHash<ProcessRowKey, int> ProcessTableView::places() const {
    QHash<ProcessRowKey, int> places;
    places.reserve(m_rows->rowCount());
    for (int place = 0; place < m_rows->rowCount(); ++place)
        places.insert(m_rows->keyOf(m_rows->row(place)), place);
    return places;
}

/// Adds the rows that have gone, down to the one that is held, so that it stays where it is.
QList<ProcessTableRow> ProcessTableView::withGone(QList<ProcessTableRow> rows) const {
    const int held = heldRow();
    if (held < 0)
        return rows;
    QHash<ProcessRowKey, int> next;
    next.reserve(rows.size());
    for (int place = 0; place < rows.size(); ++place)
        next.insert(m_rows->keyOf(rows[place]), place);
    QList<ProcessTableRow> result;
    result.reserve(rows.size());
    int taken = 0; // of `rows`
    for (int place = 0; place <= held && place < m_rows->rowCount(); ++place) {
        const auto found = next.constFind(m_rows->keyOf(m_rows->row(place)));
        if (found == next.cend()) {
            result.append(m_rows->row(place));
            result.last().isGone = true;
        }
        for (; found != next.cend() && taken <= *found; ++taken)
            result.append(std::move(rows[taken]));
    }
    for (; taken < rows.size(); ++taken)
        result.append(std::move(rows[taken]));
    return result;
}

void ProcessTableView::markSort(const QString& column, bool isAscending) {
    m_sort = column;
    m_isAscending = isAscending;
    const int section = static_cast<int>(m_rows->columns().indexOf(ProcessColumns::withId(column)));
    header()->setSortIndicator(section, isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void ProcessTableView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        m_delegate->release(event->pos());
}

void ProcessTableView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && !m_delegate->isPressed() && indexAt(event->pos()).isValid())
        Q_EMIT detailsRequested();
}

void ProcessTableView::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = !(event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (event->key() == Qt::Key_Delete && isPlain) {
        Q_EMIT endRequested(selectedRows(), event->modifiers() & Qt::ShiftModifier);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT detailsRequested();
    } else if (event->key() == Qt::Key_Escape && isPlain && currentIndex().isValid()) {
        clearSelection();
        setCurrentIndex({});
    } else if (!isPlain || !foldByKey(event->key())) {
        TableView::keyPressEvent(event);
    }
}

/// Left folds a branch or goes to the parent, Right opens a branch.
bool ProcessTableView::foldByKey(int key) {
    if (m_rows->listing() != ProcessListing::tree || !currentIndex().isValid() ||
        (key != Qt::Key_Left && key != Qt::Key_Right))
        return false;
    const ProcessTableRow row = m_rows->row(currentIndex().row());
    if (row.branch == (key == Qt::Key_Left ? Branch::open : Branch::folded)) {
        Q_EMIT foldToggled(row);
        return true;
    }
    for (int place = currentIndex().row(); key == Qt::Key_Left && place >= 0; --place) {
        if (m_rows->row(place).depth < row.depth) {
            setCurrentIndex(m_rows->index(place, 0));
            break;
        }
    }
    return true;
}

void ProcessTableView::fillMenu(QMenu& menu, const QModelIndex& index) {
    Q_EMIT menuOpens(menu, m_rows->row(index.row()));
}
