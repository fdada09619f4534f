#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

class TableView;

/// What screen readers are told of a table: its rows, columns and heads. Qt calls every view of this kind a
/// tree.
class TableAccess : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit TableAccess(TableView* view);
    ~TableAccess() override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::Role role() const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    /// Returns the heads first, then the cells row by row: Qt's views number their children so too.
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    TableView& view() const;
    QAccessibleInterface* at(int row, int column) const; ///< row -1 for a head
    void forgetCells();

    mutable QHash<int, QAccessible::Id> m_cells; ///< by the index of the child
};

/// One cell, or a head: the place in the table, whatever row stands there.
class TableCellAccess : public QAccessibleInterface,
                        public QAccessibleTableCellInterface,
                        public QAccessibleActionInterface {
public:
    TableCellAccess(TableView* view, int row, int column);

    void* interface_cast(QAccessible::InterfaceType type) override;
    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QModelIndex index() const;
    bool isHead() const { return m_row < 0; }

    QPointer<TableView> m_view;
    int m_row; ///< -1 for a head
    int m_column;
};
