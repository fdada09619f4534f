#pragma once

#include "UI/Processes/KeyedTableModel.h"
#include "UI/Processes/ProcessQuery.h"

/// One row of either table: a process by itself, or all of one name.
struct ProcessTableRow {
    ProcSample first;            ///< the process, or the first of the name
    QList<ProcSample> processes; ///< empty for a process by itself
    quint64 rssBytes = 0;
    double cpuPercent = 0;
    int sameName = 1; ///< how many processes of the machine have the name
};

/// The rows of the Processes section.
class ProcessTableModel : public KeyedTableModel<ProcessTableRow, quint64> {
    Q_OBJECT

public:
    enum class Column { name, group, pid, cpu, ram, threads, idle, procs, actions };

    using KeyedTableModel::KeyedTableModel;

    /// Whether there is one row a name. Takes the rows away; the caller puts up others.
    void setGrouped(bool grouped);
    bool isGrouped() const { return m_isGrouped; }
    Column column(int index) const;
    /// -1 when the table has no such column.
    int indexOf(Column column) const;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    quint64 keyOf(const ProcessTableRow& row) const override;

private:
    bool m_isGrouped = false;
    mutable QHash<QString, quint64> m_nameKeys;
};
