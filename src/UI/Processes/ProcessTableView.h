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

    /// Shows the rows of another query, from the top.
    void show(QList<ProcessTableRow> rows, bool isGrouped);
    /// Shows new rows of the same query. Rows move; selection and scroll position stay.
    void update(QList<ProcessTableRow> rows);
    /// Marks the header of that column. Sorts nothing.
    void markSort(const QString& column);

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    void sortRequested(const QString& column);
    /// Emitted before the menu of a row is shown, so that it can be filled.
    void menuOpens(QMenu& menu, const ProcessTableRow& row, bool isGrouped);

protected:
    void fillMenu(QMenu& menu, const QModelIndex& index) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void restoreWidths();
    void requestSort(int section);

    ProcessTableModel* m_rows;
    ProcessRowDelegate* m_delegate;
    ColumnWidths m_widths;
    QString m_sort;
};
