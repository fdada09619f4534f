#include "UI/Settings/HistoryTableModel.h"

#include "Core/Formatters.h"
#include "UI/Kit/TableColumn.h"
#include "UI/Settings/LocalTimeText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct HistoryColumn {
    const char* title;
    QString (*text)(const LoggedAction&);
    bool (*isLess)(const LoggedAction&, const LoggedAction&);
    Qt::Alignment alignment = Qt::AlignLeft;
    /// Of the first click: the newest, the largest, the failed first.
    Qt::SortOrder first = Qt::AscendingOrder;
};

template <auto member> bool isLess(const LoggedAction& one, const LoggedAction& other) {
    return one.*member < other.*member;
}

bool isLessInDetail(const LoggedAction& one, const LoggedAction& other) {
    return one.detail.compare(other.detail, Qt::CaseInsensitive) < 0;
}

QString timeOf(const LoggedAction& action) {
    static const LocalTimeText times;
    return times.of(action.timestamp);
}

/// In the order of Column.
constexpr HistoryColumn table[HistoryTableModel::columns] = {
    {.title = QT_TRANSLATE_NOOP("Columns", "Time"),
     .text = timeOf,
     .isLess = isLess<&LoggedAction::timestamp>,
     .first = Qt::DescendingOrder},
    {.title = QT_TRANSLATE_NOOP("Columns", "Kind"),
     .text = [](const LoggedAction& action) { return Formatters::visible(action.kind); },
     .isLess = isLess<&LoggedAction::kind>},
    {.title = QT_TRANSLATE_NOOP("Columns", "Detail"),
     .text = [](const LoggedAction& action) { return Formatters::visible(action.detail); },
     .isLess = isLessInDetail},
    {.title = QT_TRANSLATE_NOOP("Columns", "Freed"),
     .text = [](const LoggedAction& action) { return Formatters::bytes(action.freedBytes); },
     .isLess = isLess<&LoggedAction::freedBytes>,
     .alignment = Qt::AlignRight,
     .first = Qt::DescendingOrder},
    {.title = QT_TRANSLATE_NOOP("Columns", "OK"), // shown as a symbol; said and copied as a word
     .text =
         [](const LoggedAction& action) {
             return action.success ? HistoryTableModel::tr("OK") : HistoryTableModel::tr("Failed");
         },
     .isLess = isLess<&LoggedAction::success>,
     .alignment = Qt::AlignHCenter},
};

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
    if (m_sortColumn != Column::time || m_sortOrder != Qt::DescendingOrder) // the order of the entries
        arrange();
}

/// Sorts by the column. Equal rows stay newest first.
void HistoryTableModel::arrange() {
    std::sort(m_filtered.begin(), m_filtered.end());
    const auto isLess = table[static_cast<int>(m_sortColumn)].isLess;
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
    return cellData(table[index.column()], filtered(index.row()), role);
}

QVariant HistoryTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    return role == Qt::InitialSortOrderRole ? table[section].first : headData(table[section], role);
}
