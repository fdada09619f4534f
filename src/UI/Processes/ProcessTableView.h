#pragma once

#include "UI/Kit/StoreLater.h"
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
    void markSort(SortBy sort);

Q_SIGNALS:
    void triggered(RowAction action, const ProcessTableRow& row);
    void sortRequested(SortBy sort);
    /// The menu of a row is about to be shown, to be filled now.
    void menuOpens(QMenu& menu, const ProcessTableRow& row, bool isGrouped);

protected:
    void fillMenu(QMenu& menu, const QModelIndex& index) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString widthsKey() const;
    void restoreWidths();
    void storeWidths();
    void requestSort(int section);

    Preferences& m_preferences;
    ProcessTableModel* m_rows;
    ProcessRowDelegate* m_delegate;
    StoreLater m_storeLater;
    SortBy m_sort = SortBy::ram;
    bool m_isRestoring = false;
};
