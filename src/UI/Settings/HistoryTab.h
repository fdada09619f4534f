#pragma once

#include <QWidget>

class HistoryTableModel;
class Notice;
class PopUpButton;
class PushButton;
class QStackedWidget;
class TableView;

/// The History tab of the settings: the entries of the action log, newest first, with a filter, export and
/// clearing. The file is read when the tab appears and on Refresh only.
class HistoryTab : public QWidget {
    Q_OBJECT

public:
    explicit HistoryTab(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeToolbar();
    QWidget* makeEmptyPage();
    void refresh();
    void setFilterKind(const QString& kind);
    void exportCSV();
    void confirmClear();
    void clear();
    void exportTo(const QString& path);
    /// Shows the table, or that it is empty.
    void showRows();

    HistoryTableModel* m_rows;
    TableView* m_table;
    PopUpButton* m_kinds;
    PushButton* m_allKinds = nullptr;
    Notice* m_notice;
    QStackedWidget* m_stack;
};
