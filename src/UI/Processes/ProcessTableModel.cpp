#include "UI/Processes/ProcessTableModel.h"

#include "UI/Kit/TableColumn.h"

void ProcessTableModel::setColumns(bool grouped, const QStringList& chosen) {
    replace({});
    beginResetModel();
    m_isGrouped = grouped;
    m_columns = ProcessColumns::shown(grouped, chosen);
    endResetModel();
}

int ProcessTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ProcessTableModel::data(const QModelIndex& index, int role) const {
    const ProcessColumn& column = columnOf(index);
    const ProcessTableRow& shown = row(index.row());
    const qsizetype count = shown.processes.size();
    if (role == Qt::AccessibleTextRole && column.kind == ProcessColumn::Kind::name && count > 1)
        return QStringLiteral("%1 ×%2").arg(column.text(shown)).arg(count); // with the painted badge
    return cellData(column, shown, role == Qt::AccessibleTextRole ? Qt::DisplayRole : role);
}

QVariant ProcessTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal ? headData(*m_columns[section], role) : QVariant();
}

ProcessRowKey ProcessTableModel::keyOf(const ProcessTableRow& row) const {
    if (m_isGrouped)
        return {.name = row.first.name};
    const auto start = static_cast<quint32>(row.first.startTime.time_since_epoch().count() / 1000);
    return {.process = (static_cast<quint64>(static_cast<quint32>(row.first.pid)) << 32) | start};
}
