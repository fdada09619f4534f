#pragma once

#include <QTreeView>

class HistoryTableModel;

/// The table of the action history: sorted by its heads, copied by row.
class HistoryTableView : public QTreeView {
    Q_OBJECT

public:
    explicit HistoryTableView(HistoryTableModel* rows, QWidget* parent = nullptr);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void copySelection() const;
};
