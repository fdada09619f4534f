#include "UI/Settings/HistoryTableModel.h"

#include "Core/Formatters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Column = HistoryTableModel::Column;
using IsLess = bool (*)(const LoggedAction&, const LoggedAction&);

IsLess lessBy(Column column) {
    switch (column) {
    case Column::time:
        break;
    case Column::kind:
        return [](const LoggedAction& one, const LoggedAction& other) { return one.kind < other.kind; };
    case Column::detail:
        return [](const LoggedAction& one, const LoggedAction& other) {
            return one.detail.compare(other.detail, Qt::CaseInsensitive) < 0;
        };
    case Column::freed:
        return [](const LoggedAction& one, const LoggedAction& other) {
            return one.freedBytes < other.freedBytes;
        };
    case Column::ok:
        return [](const LoggedAction& one, const LoggedAction& other) { return one.success < other.success; };
    }
    return [](const LoggedAction& one, const LoggedAction& other) { return one.timestamp < other.timestamp; };
}

QString titleOf(Column column) {
    switch (column) {
    case Column::time:
        return HistoryTableModel::tr("Time");
    case Column::kind:
        return HistoryTableModel::tr("Kind");
    case Column::detail:
        return HistoryTableModel::tr("Detail");
    case Column::freed:
        return HistoryTableModel::tr("Freed");
    case Column::ok:
        return HistoryTableModel::tr("OK");
    }
    return {};
}

Qt::Alignment alignmentOf(Column column) {
    if (column == Column::freed)
        return Qt::AlignRight | Qt::AlignVCenter;
    return (column == Column::ok ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
}

} // namespace

QString HistoryTableModel::allKinds() {
    return u"all"_s;
}

void HistoryTableModel::setEntries(QList<LoggedAction> entries) {
    beginResetModel();
    m_entries = std::move(entries);
    filter();
    endResetModel();
}

void HistoryTableModel::setFilterKind(const QString& kind) {
    beginResetModel();
    m_filterKind = kind;
    filter();
    endResetModel();
}

void HistoryTableModel::filter() {
    const bool takesAll = m_filterKind == allKinds();
    m_filtered.clear();
    m_filtered.reserve(m_entries.size());
    for (int i = 0; i < m_entries.size(); ++i) {
        if (takesAll || m_entries[i].kind == m_filterKind)
            m_filtered.append(i);
    }
    if (m_sortColumn != Column::time || m_sortOrder != Qt::DescendingOrder) // the order they came in
        arrange();
}

/// Rows that are equal in the column stay newest first.
void HistoryTableModel::arrange() {
    std::sort(m_filtered.begin(), m_filtered.end());
    const IsLess isLess = lessBy(m_sortColumn);
    const bool ascending = m_sortOrder == Qt::AscendingOrder;
    std::stable_sort(m_filtered.begin(), m_filtered.end(), [&](int one, int other) {
        return ascending ? isLess(m_entries[one], m_entries[other])
                         : isLess(m_entries[other], m_entries[one]);
    });
}

void HistoryTableModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columns)
        return;
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QList<int> shown;
    for (const QModelIndex& each : before)
        shown.append(m_filtered[each.row()]);
    m_sortColumn = static_cast<Column>(column);
    m_sortOrder = order;
    arrange();
    QList<int> rows(before.isEmpty() ? 0 : m_entries.size());
    for (int row = 0; row < m_filtered.size() && !rows.isEmpty(); ++row)
        rows[m_filtered[row]] = row;
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(index(rows[shown[i]], before[i].column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

int HistoryTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_filtered.size());
}

int HistoryTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant HistoryTableModel::data(const QModelIndex& index, int role) const {
    const auto column = static_cast<Column>(index.column());
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(column));
    if (role != Qt::DisplayRole)
        return {};
    const LoggedAction& action = filtered(index.row());
    switch (column) {
    case Column::time:
        return m_times.of(action.timestamp);
    case Column::kind:
        return Formatters::visible(action.kind);
    case Column::detail:
        return Formatters::visible(action.detail);
    case Column::freed:
        return Formatters::bytes(action.freedBytes);
    case Column::ok: // shown as a symbol; said and copied as a word
        return action.success ? tr("OK") : tr("Failed");
    }
    return {};
}

QVariant HistoryTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    const auto column = static_cast<Column>(section);
    if (role == Qt::DisplayRole)
        return titleOf(column);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(column));
    if (role == Qt::InitialSortOrderRole) // what one looks for first: the newest, the largest, the failed
        return column == Column::time || column == Column::freed ? Qt::DescendingOrder : Qt::AscendingOrder;
    return {};
}
