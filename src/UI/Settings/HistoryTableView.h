#pragma once

#include "UI/Kit/TableView.h"

class HistoryTableModel;

/// The table of the action history: sorted by its heads, copied by row.
class HistoryTableView : public TableView {
    Q_OBJECT

public:
    explicit HistoryTableView(HistoryTableModel* rows, QWidget* parent = nullptr);
};
