#include "UI/Processes/ProcessTableModel.h"

#include "Core/Formatters.h"

#include <array>

namespace {

using Column = ProcessTableModel::Column;

constexpr std::array flatColumns = {Column::name, Column::group,   Column::pid,  Column::cpu,
                                    Column::ram,  Column::threads, Column::idle, Column::actions};
constexpr std::array groupedColumns = {Column::name, Column::group, Column::cpu,
                                       Column::ram,  Column::procs, Column::actions};

QString titleOf(Column column) {
    switch (column) {
    case Column::name:
        return QStringLiteral("Name");
    case Column::group:
        return QStringLiteral("Group");
    case Column::pid:
        return QStringLiteral("PID");
    case Column::cpu:
        return QStringLiteral("CPU%");
    case Column::ram:
        return QStringLiteral("RAM");
    case Column::threads:
        return QStringLiteral("Threads");
    case Column::idle:
        return QStringLiteral("Idle");
    case Column::procs:
        return QStringLiteral("Procs");
    case Column::actions:
        return QStringLiteral("Actions");
    }
    return {};
}

QString textOf(const ProcessTableRow& row, Column column) {
    switch (column) {
    case Column::name:
        return Formatters::visible(row.first.name);
    case Column::group:
        return rawValue(row.first.group);
    case Column::pid:
        return QString::number(row.first.pid);
    case Column::cpu:
        return Formatters::percent(row.cpuPercent);
    case Column::ram:
        return Formatters::bytes(row.rssBytes);
    case Column::threads:
        return QString::number(row.first.threads);
    case Column::idle:
        return Formatters::duration(row.first.idleSeconds);
    case Column::procs:
        return QString::number(row.processes.size());
    case Column::actions:
        break;
    }
    return {};
}

/// The name as a screen reader says it, with the painted badge.
QString nameAndBadge(const ProcessTableRow& row) {
    const QString name = textOf(row, Column::name);
    return row.processes.size() > 1 ? QStringLiteral("%1 ×%2").arg(name).arg(row.processes.size()) : name;
}

bool isFigure(Column column) {
    return column != Column::name && column != Column::group && column != Column::actions;
}

} // namespace

void ProcessTableModel::setGrouped(bool grouped) {
    replace({});
    beginResetModel();
    m_isGrouped = grouped;
    endResetModel();
}

ProcessTableModel::Column ProcessTableModel::column(int index) const {
    const auto at = static_cast<std::size_t>(index);
    return m_isGrouped ? groupedColumns.at(at) : flatColumns.at(at);
}

int ProcessTableModel::indexOf(Column wanted) const {
    for (int i = 0; i < columnCount(); ++i) {
        if (column(i) == wanted)
            return i;
    }
    return -1;
}

int ProcessTableModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid())
        return 0;
    return static_cast<int>(m_isGrouped ? groupedColumns.size() : flatColumns.size());
}

QVariant ProcessTableModel::data(const QModelIndex& index, int role) const {
    const Column at = column(index.column());
    if (role == Qt::DisplayRole)
        return textOf(row(index.row()), at);
    if (role == Qt::AccessibleTextRole && at == Column::name)
        return nameAndBadge(row(index.row()));
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(isFigure(at) ? Qt::AlignRight | Qt::AlignVCenter
                                                : Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

QVariant ProcessTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return titleOf(column(section));
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(isFigure(column(section)) ? Qt::AlignRight | Qt::AlignVCenter
                                                             : Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

ProcessRowKey ProcessTableModel::keyOf(const ProcessTableRow& row) const {
    if (m_isGrouped)
        return {.name = row.first.name};
    const auto start = static_cast<quint32>(row.first.startTime.time_since_epoch().count() / 1000);
    return {.process = (static_cast<quint64>(static_cast<quint32>(row.first.pid)) << 32) | start};
}
