#pragma once

#include "UI/Kit/ColumnWidths.h"
#include "UI/Kit/TableView.h"
#include "UI/Processes/ColumnOrder.h"
#include "UI/Processes/ProcessRowDelegate.h"

class Preferences;

/// The table itself: columns that are chosen, moved and stored, rows with buttons and a menu.
class ProcessTableView : public TableView {
    Q_OBJECT

public:
    explicit ProcessTableView(Preferences& preferences, QWidget* parent = nullptr);

    /// Fills a menu with the columns to show and hide, and with the moves of those on show.
    void fillColumnsMenu(QMenu& menu);
    /// Returns the processes of the rows that a person can see.
    QList<ProcSample> processesInView() const;
    bool shows(ProcessColumn::Need need) const;
    /// Returns the rows that are selected, from top to bottom.
    QList<ProcessTableRow> selectedRows() const;
    bool isTree() const override { return m_rows->listing() == ProcessListing::tree; }
    ProcessTableModel& rows() { return *m_rows; }
    const ProcessTableModel& rows() const { return *m_rows; }

    /// Shows the rows of another query, from the top.
    void show(QList<ProcessTableRow> rows, ProcessListing listing);
    /// Shows new rows of the same query. Rows move; selection and scroll position stay.
    void update(QList<ProcessTableRow> rows);
    /// Leaves out columns that matter less while the table is too narrow for all.
    void setCompact(bool isCompact);
    /// Moves the selection to that process. Returns false when it is not on show.
    bool select(const ProcSample& process);
    /// Returns the current row's process, the first of a name; null without a row.
    const ProcSample* current() const;
    /// Marks the header of that column. Sorts nothing.
    void markSort(const QString& column, bool isAscending);

    /// Returns whether rows have to stay where they are: the pointer or the keyboard is on one.
    bool isHeld() const { return heldRow() >= 0; }
    /// Returns the places of the rows, for a query that keeps them.
    QHash<ProcessRowKey, int> places() const;

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    void foldToggled(const ProcessTableRow& row);
    /// Emitted when the user chose other columns. There are no rows until the next `show`.
    void columnsChanged();
    void sortRequested(const QString& column);
    /// Emitted before the menu of a row is shown, so that it can be filled.
    void menuOpens(QMenu& menu, const ProcessTableRow& row);
    /// Emitted when the user wants to end the selected rows.
    void endRequested(const QList<ProcessTableRow>& rows, bool force);
    void detailsRequested();
    /// Emitted when a person has moved to another row.
    void currentMoved();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void fillMenu(QMenu& menu, const QModelIndex& index) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void toggleColumn(const QString& id);
    void setColumns(ProcessListing listing);
    void restoreWidths();
    void fitColumns();
    void fillMoves(QMenu& menu, int section);
    void openHeadMenu(const QPoint& at);
    int heldRow() const;
    bool foldByKey(int key);
    QList<ProcessTableRow> withGone(QList<ProcessTableRow> rows) const;

    ProcessTableModel* m_rows;
    ProcessRowDelegate* m_delegate;
    SettingsFile& m_file;
    ColumnWidths m_widths;
    ColumnOrder m_order;
    QStringList m_toggled; ///< ids of columns whose visibility the user has changed
    QString m_sort;
    bool m_isAscending = false;
    bool m_isCompact = false;
    bool m_isUpdating = false;
};
