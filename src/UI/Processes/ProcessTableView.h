#pragma once

#include "UI/Kit/ColumnWidths.h"
#include "UI/Kit/TableView.h"
#include "UI/Processes/ProcessRowDelegate.h"
#include "UI/Processes/ProcessTableModel.h"

class Preferences;

/// The table itself: columns whose widths are remembered, rows with buttons and a menu.
class ProcessTableView : public TableView {
    Q_OBJECT

public:
    explicit ProcessTableView(Preferences& preferences, QWidget* parent = nullptr);

    /// Puts up rows for another question than before, from the top.
    void show(QList<ProcessTableRow> rows, bool isGrouped);
    /// The same question asked again: rows move, and what is selected or under the pointer stays so.
    void update(QList<ProcessTableRow> rows);
    /// The head of that column is marked; nothing is sorted here.
    void markSort(const QString& column);

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    void sortRequested(const QString& column);
    /// The menu of a row is about to be shown, to be filled now.
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
