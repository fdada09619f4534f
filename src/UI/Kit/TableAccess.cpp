#include "UI/Kit/TableAccess.h"

#include "UI/Kit/TableView.h"

#include <QHeaderView>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int headRow = -1;

} // namespace

TableAccess::TableAccess(TableView* view)
    : QAccessibleWidget(view, QAccessible::Table) {}

TableAccess::~TableAccess() {
    forgetCells();
}

TableView& TableAccess::view() const {
    return *static_cast<TableView*>(widget());
}

void* TableAccess::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QAccessible::Role TableAccess::role() const {
    return view().isTree() ? QAccessible::Tree : QAccessible::Table;
}

int TableAccess::rowCount() const {
    return view().model() ? view().model()->rowCount() : 0;
}

int TableAccess::columnCount() const {
    return view().model() ? view().model()->columnCount() : 0;
}

int TableAccess::childCount() const {
    return (rowCount() + 1) * columnCount();
}

int TableAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const TableCellAccess*>(child);
    return cell && cell->isValid() ? (cell->rowIndex() + 1) * columnCount() + cell->columnIndex() : -1;
}

QAccessibleInterface* TableAccess::child(int index) const {
    const int columns = columnCount();
    return index >= 0 && columns > 0 ? at(index / columns + headRow, index % columns) : nullptr;
}

QAccessibleInterface* TableAccess::at(int row, int column) const {
    if (row < headRow || row >= rowCount() || column < 0 || column >= columnCount())
        return nullptr;
    const int index = (row + 1) * columnCount() + column;
    const auto known = m_cells.constFind(index);
    if (known != m_cells.cend())
        return QAccessible::accessibleInterface(*known);
    auto* cell = new TableCellAccess(&view(), row, column);
    m_cells.insert(index, QAccessible::registerAccessibleInterface(cell));
    return cell;
}

QAccessibleInterface* TableAccess::cellAt(int row, int column) const {
    return row >= 0 ? at(row, column) : nullptr;
}

QAccessibleInterface* TableAccess::childAt(int x, int y) const {
    const QHeaderView* head = view().header();
    const QPoint inHead = head->mapFromGlobal(QPoint(x, y));
    if (head->isVisible() && head->rect().contains(inHead))
        return at(headRow, head->logicalIndexAt(inHead));
    const QModelIndex index = view().indexAt(view().viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? at(index.row(), index.column()) : nullptr;
}

QAccessibleInterface* TableAccess::focusChild() const {
    const QModelIndex current = view().currentIndex();
    return view().hasFocus() && current.isValid() ? at(current.row(), current.column()) : nullptr;
}

QString TableAccess::columnDescription(int column) const {
    return view().model()->headerData(column, Qt::Horizontal).toString();
}

QList<int> TableAccess::selectedRows() const {
    QList<int> rows;
    if (const QItemSelectionModel* selection = view().selectionModel()) {
        for (const QModelIndex& index : selection->selectedRows())
            rows.append(index.row());
    }
    std::ranges::sort(rows);
    return rows;
}

int TableAccess::selectedRowCount() const {
    return static_cast<int>(selectedRows().size());
}

int TableAccess::selectedCellCount() const {
    return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface*> TableAccess::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows()) {
        for (int column = 0; column < columnCount(); ++column)
            cells.append(at(row, column));
    }
    return cells;
}

bool TableAccess::isRowSelected(int row) const {
    return selectedRows().contains(row);
}

bool TableAccess::selectRow(int row) {
    if (row < 0 || row >= rowCount())
        return false;
    const bool isOnlyOne = view().selectionMode() == QAbstractItemView::SingleSelection;
    view().selectionModel()->select(
        view().model()->index(row, 0),
        QItemSelectionModel::Rows |
            (isOnlyOne ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Select));
    return true;
}

bool TableAccess::unselectRow(int row) {
    if (!isRowSelected(row))
        return false;
    view().selectionModel()->select(view().model()->index(row, 0),
                                    QItemSelectionModel::Rows | QItemSelectionModel::Deselect);
    return true;
}

/// A cell is a place, so only other columns make another one of it.
void TableAccess::modelChange(QAccessibleTableModelChangeEvent* event) {
    using Event = QAccessibleTableModelChangeEvent;
    const auto kind = event->modelChangeType();
    if (kind == Event::ModelReset || kind == Event::ColumnsInserted || kind == Event::ColumnsRemoved)
        forgetCells();
}

void TableAccess::forgetCells() {
    for (const QAccessible::Id cell : std::as_const(m_cells))
        QAccessible::deleteAccessibleInterface(cell);
    m_cells.clear();
}

TableCellAccess::TableCellAccess(TableView* view, int row, int column)
    : m_view(view)
    , m_row(row)
    , m_column(column) {}

void* TableCellAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface && !isHead())
        return static_cast<QAccessibleTableCellInterface*>(this);
    return type == QAccessible::ActionInterface && !isHead() ? static_cast<QAccessibleActionInterface*>(this)
                                                             : nullptr;
}

QModelIndex TableCellAccess::index() const {
    return m_view && m_view->model() ? m_view->model()->index(m_row, m_column) : QModelIndex();
}

bool TableCellAccess::isValid() const {
    return isHead() ? m_view && m_view->model() && m_column < m_view->model()->columnCount()
                    : index().isValid();
}

QWindow* TableCellAccess::window() const {
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

QAccessibleInterface* TableCellAccess::parent() const {
    return QAccessible::queryAccessibleInterface(m_view);
}

QString TableCellAccess::text(QAccessible::Text kind) const {
    if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Description))
        return {};
    if (isHead())
        return kind == QAccessible::Name ? m_view->model()->headerData(m_column, Qt::Horizontal).toString()
                                         : QString();
    if (kind == QAccessible::Description)
        return index().data(Qt::AccessibleDescriptionRole).toString();
    const QString spoken = index().data(Qt::AccessibleTextRole).toString();
    return spoken.isEmpty() ? index().data(Qt::DisplayRole).toString() : spoken;
}

QRect TableCellAccess::rect() const {
    if (!isValid())
        return {};
    if (!isHead()) {
        const QRect cell = m_view->visualRect(index());
        return {m_view->viewport()->mapToGlobal(cell.topLeft()), cell.size()};
    }
    const QHeaderView* head = m_view->header();
    const QPoint corner(head->sectionViewportPosition(m_column), 0);
    return {head->mapToGlobal(corner), QSize(head->sectionSize(m_column), head->height())};
}

QAccessible::Role TableCellAccess::role() const {
    if (isHead())
        return QAccessible::ColumnHeader;
    return m_view && m_view->isTree() ? QAccessible::TreeItem : QAccessible::Cell;
}

QAccessible::State TableCellAccess::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid || isHead())
        return state;
    const QModelIndex current = m_view->currentIndex();
    state.selectable = true;
    state.multiSelectable = m_view->selectionMode() == QAbstractItemView::ExtendedSelection;
    state.focusable = true;
    state.selected = isSelected();
    state.focused = m_view->hasFocus() && current == index();
    state.offscreen = !m_view->viewport()->rect().intersects(m_view->visualRect(index()));
    state.invisible = m_view->header()->isSectionHidden(m_column);
    return state;
}

bool TableCellAccess::isSelected() const {
    return m_view && m_view->selectionModel() && m_view->selectionModel()->isSelected(index());
}

QList<QAccessibleInterface*> TableCellAccess::columnHeaderCells() const {
    QAccessibleInterface* owner = parent();
    QAccessibleInterface* head = owner ? owner->child(m_column) : nullptr;
    return head ? QList<QAccessibleInterface*>{head} : QList<QAccessibleInterface*>();
}

QStringList TableCellAccess::actionNames() const {
    return {toggleAction(), setFocusAction()};
}

void TableCellAccess::doAction(const QString& name) {
    if (!isValid())
        return;
    if (name == setFocusAction()) {
        m_view->setFocus();
        m_view->setCurrentIndex(index());
    } else if (name == toggleAction()) {
        m_view->selectionModel()->select(index(), QItemSelectionModel::Rows | QItemSelectionModel::Toggle);
    }
}
