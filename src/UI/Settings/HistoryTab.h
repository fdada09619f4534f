#pragma once

#include <QWidget>

class HistoryTableModel;
class HistoryTableView;
class QStackedWidget;

/// The History tab of the settings: what the action log file holds, newest first, to be filtered, exported
/// and cleared. The file is read when the tab appears and on Refresh, and at no other time.
class HistoryTab : public QWidget {
    Q_OBJECT

public:
    explicit HistoryTab(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeToolbar();
    void refresh();
    void setFilterKind(const QString& kind);
    void exportCSV();
    void confirmClear();
    void clear();
    /// The table, or why there is none.
    void showRows();

    HistoryTableModel* m_rows;
    HistoryTableView* m_table;
    QStackedWidget* m_stack;
};
