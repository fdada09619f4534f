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

/// What makes a row the same from one tick to the next: one of the two. Nothing remembers keys, so that names
/// which never come again leave nothing behind.
struct ProcessRowKey {
    quint64 process = 0; ///< of a process by itself: its id, and its start, which tells it from a later one
    QString name;        ///< of all processes of one name

    bool operator==(const ProcessRowKey&) const = default;
};

inline size_t qHash(const ProcessRowKey& key, size_t seed = 0) {
    return key.name.isEmpty() ? ::qHash(key.process, seed) : ::qHash(key.name, seed);
}

/// The rows of the Processes section.
class ProcessTableModel : public KeyedTableModel<ProcessTableRow, ProcessRowKey> {
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
    ProcessRowKey keyOf(const ProcessTableRow& row) const override;

private:
    bool m_isGrouped = false;
};
