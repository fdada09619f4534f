#pragma once

#include "UI/Processes/KeyedTableModel.h"
#include "UI/Processes/ProcessColumns.h"

/// Identifies a row from one tick to the next, by one of its members. No key outlives its row, so that old
/// names take no memory.
struct ProcessRowKey {
    quint64 process = 0; ///< of one process: its PID, and its start, which tells it from a later one
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
    using KeyedTableModel::KeyedTableModel;

    /// Sets whether there is a row for each name, and which optional columns there are. Removes all rows; the
    /// caller adds others.
    void setColumns(bool grouped, const QStringList& chosen);
    bool isGrouped() const { return m_isGrouped; }
    const QList<const ProcessColumn*>& columns() const { return m_columns; }
    const ProcessColumn& columnOf(const QModelIndex& index) const { return *m_columns[index.column()]; }

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    ProcessRowKey keyOf(const ProcessTableRow& row) const override;

private:
    bool m_isGrouped = false;
    QList<const ProcessColumn*> m_columns = ProcessColumns::shown(m_isGrouped, {});
};
