#pragma once

#include "Core/Relief/ProtectedProcesses.h"
#include "UI/Processes/KeyedTableModel.h"
#include "UI/Processes/ProcessQuery.h"

/// What a row's buttons do.
enum class RowAction { quit, forceKill, sweep };

/// The rows of the Processes section.
class ProcessTableModel : public KeyedTableModel<ProcessTableRow, ProcessRowKey> {
    Q_OBJECT

public:
    using KeyedTableModel::KeyedTableModel;

    /// Sets how the processes stand, and the columns whose visibility the user has changed. Removes all rows;
    /// the caller adds others.
    void setColumns(ProcessListing listing, const QStringList& toggled);
    ProcessListing listing() const { return m_listing; }
    bool isGrouped() const { return m_listing == ProcessListing::byName; }
    const QList<const ProcessColumn*>& columns() const { return m_columns; }
    const ProcessColumn& columnOf(const QModelIndex& index) const { return *m_columns[index.column()]; }

    /// What the columns show besides the rows; it outlives the model's use of it.
    void setFacts(const ColumnFacts* facts) { m_facts = facts; }
    const ColumnFacts& facts() const { return *m_facts; }
    void setWords(const SearchWords& words) { m_words = words; }
    const SearchWords& words() const { return m_words; }
    void setProtected(const ProtectedProcesses& processes) { m_protected = processes; }

    ProcessRowKey keyOf(const ProcessTableRow& row) const override {
        return ProcessRowKey::of(row, isGrouped());
    }
    /// Returns the processes that an action on the row means.
    QList<ProcSample> targetsOf(const ProcessTableRow& row) const;
    /// Returns why no button may end the row's processes.
    std::optional<Protection> protectionOf(const ProcessTableRow& row) const;
    /// Returns the actions of the row's buttons, in order.
    QList<RowAction> buttonsOf(const ProcessTableRow& row) const;
    /// Returns what a button does, as its tool tip.
    QString helpOf(RowAction action, const ProcessTableRow& row) const;

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString spokenText(const ProcessColumn& column, const ProcessTableRow& row) const;

    static inline const ColumnFacts noFacts;

    ProcessListing m_listing = ProcessListing::flat;
    QList<const ProcessColumn*> m_columns = ProcessColumns::shown(false, {});
    const ColumnFacts* m_facts = &noFacts;
    SearchWords m_words;
    ProtectedProcesses m_protected;
};
