#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QSet>

#include <utility>

/// A table model whose rows are replaced as a whole but keep their identity: rows with the same key are the
/// same row. Selection, current row and open menus move with it.
template <typename Row, typename Key> class KeyedTableModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    const Row& row(int index) const { return m_rows[index]; }

    /// Changes, inserts, removes and moves rows until they are `next`.
    void update(QList<Row> next) {
        QHash<Key, int> places;
        places.reserve(next.size());
        for (int i = 0; i < next.size(); ++i)
            places.insert(keyOf(next[i]), i);
        removeMissing(places);
        appendNew(next);
        reorder(places, std::move(next));
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }

    /// Replaces all rows by others.
    void replace(QList<Row> rows) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }

protected:
    virtual Key keyOf(const Row& row) const = 0;

private:
    void removeMissing(const QHash<Key, int>& places) {
        for (int last = rowCount() - 1; last >= 0; --last) {
            if (places.contains(keyOf(m_rows[last])))
                continue;
            int first = last;
            while (first > 0 && !places.contains(keyOf(m_rows[first - 1])))
                --first;
            beginRemoveRows({}, first, last);
            m_rows.remove(first, last - first + 1);
            endRemoveRows();
            last = first;
        }
    }

    void appendNew(const QList<Row>& next) {
        if (m_rows.size() == next.size())
            return;
        QSet<Key> present;
        present.reserve(m_rows.size());
        for (const Row& each : std::as_const(m_rows))
            present.insert(keyOf(each));
        QList<Row> added;
        for (const Row& each : next) {
            if (!present.contains(keyOf(each)))
                added.append(each);
        }
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(added.size()) - 1);
        m_rows.append(added);
        endInsertRows();
    }

    void reorder(const QHash<Key, int>& places, QList<Row> next) {
        bool moved = false;
        for (int i = 0; i < next.size() && !moved; ++i)
            moved = keyOf(m_rows[i]) != keyOf(next[i]);
        if (!moved) {
            m_rows = std::move(next);
            return;
        }
        Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
        const QModelIndexList before = persistentIndexList();
        QModelIndexList after;
        for (const QModelIndex& each : before)
            after.append(index(places.value(keyOf(m_rows[each.row()])), each.column()));
        m_rows = std::move(next);
        changePersistentIndexList(before, after);
        Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
    }

    QList<Row> m_rows;
};
