#pragma once

#include "Core/ActionLog/ActionLogReader.h"

#include <QAbstractTableModel>
#include <QList>

/// The rows of the action log, of one kind or of all, in the order of one column. A cell's text is made when
/// it is asked for, so that a long log costs no more than what is on screen.
class HistoryTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum class Column { time, kind, detail, freed, ok };
    static constexpr int columns = 5;
    /// Returns the kind that stands for all of them.
    static QString allKinds();

    using QAbstractTableModel::QAbstractTableModel;

    const QList<LoggedAction>& entries() const { return m_entries; }
    /// Sets the entries, which have to be newest first.
    void setEntries(QList<LoggedAction> entries);
    void setFilterKind(const QString& kind);
    /// Returns the entry that the row shows.
    const LoggedAction& filtered(int row) const { return m_entries[m_filtered[row]]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    void filter();
    void arrange();

    QList<LoggedAction> m_entries;
    QString m_filterKind = allKinds();
    QList<int> m_filtered; ///< positions in `m_entries`
    Column m_sortColumn = Column::time;
    Qt::SortOrder m_sortOrder = Qt::DescendingOrder;
};
