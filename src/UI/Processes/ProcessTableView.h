#pragma once

#include "UI/Kit/ColumnWidths.h"
#include "UI/Kit/TableView.h"
#include "UI/Processes/ProcessRowDelegate.h"
#include "UI/Processes/ProcessTableModel.h"

class Preferences;

/// The table itself: columns whose widths are stored, rows with buttons and a menu.
class ProcessTableView : public TableView {
    Q_OBJECT

public:
    explicit ProcessTableView(Preferences& preferences, QWidget* parent = nullptr);

    /// Fills a menu with the optional columns.
    void fillColumnsMenu(QMenu& menu);
    /// Returns the processes of the rows that a person can see.
    QList<qint32> pidsInView() const;

    /// Shows the rows of another query, from the top.
    void show(QList<ProcessTableRow> rows, bool isGrouped);
    /// Shows new rows of the same query. Rows move; selection and scroll position stay.
    void update(QList<ProcessTableRow> rows);
    /// Marks the header of that column. Sorts nothing.
    void markSort(const QString& column);

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    /// Emitted when the user chose other columns. There are no rows until the next `show`.
    void columnsChanged();
    void sortRequested(const QString& column);
    /// Emitted before the menu of a row is shown, so that it can be filled.
    void menuOpens(QMenu& menu, const ProcessTableRow& row, bool isGrouped);

protected:
    void fillMenu(QMenu& menu, const QModelIndex& index) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void chooseColumn(const QString& id, bool isShown);
    void setColumns(bool isGrouped);
    void restoreWidths();
    void requestSort(int section);

    ProcessTableModel* m_rows;
    ProcessRowDelegate* m_delegate;
    SettingsFile& m_file;
    ColumnWidths m_widths;
    QStringList m_chosen; ///< ids of optional columns
    QString m_sort;
};
