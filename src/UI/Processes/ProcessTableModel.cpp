#include "UI/Processes/ProcessTableModel.h"

#include "Core/Formatters.h"
#include "UI/Kit/TableColumn.h"

using Kind = ProcessColumn::Kind;
using Branch = ProcessTableRow::Branch;

void ProcessTableModel::setColumns(ProcessListing listing, const QStringList& toggled) {
    replace({});
    beginResetModel();
    m_listing = listing;
    m_columns = ProcessColumns::shown(isGrouped(), toggled);
    endResetModel();
}

QList<ProcSample> ProcessTableModel::targetsOf(const ProcessTableRow& row) const {
    return isGrouped() ? row.processes : QList<ProcSample>{row.first};
}

std::optional<Protection> ProcessTableModel::protectionOf(const ProcessTableRow& row) const {
    if (!isGrouped())
        return m_protected.of(row.first.pid);
    for (const ProcSample& process : row.processes) {
        if (const auto reason = m_protected.of(process.pid))
            return reason;
    }
    return std::nullopt;
}

QList<RowAction> ProcessTableModel::buttonsOf(const ProcessTableRow& row) const {
    if (row.isGone || protectionOf(row))
        return {};
    if (isGrouped())
        return {RowAction::quit, RowAction::sweep};
    if (row.sameName > 1)
        return {RowAction::quit, RowAction::forceKill, RowAction::sweep};
    return {RowAction::quit, RowAction::forceKill};
}

QString ProcessTableModel::helpOf(RowAction action, const ProcessTableRow& row) const {
    if (action == RowAction::forceKill)
        return tr("Force kill one");
    if (action == RowAction::quit)
        return isGrouped() ? tr("Quit all %1").arg(row.processes.size()) : tr("Quit one");
    if (isGrouped())
        return tr("Nuke all %1 (with confirm)").arg(row.processes.size());
    return tr("Nuke all %1 “%2” processes").arg(row.sameName).arg(Formatters::visible(row.first.name));
}

int ProcessTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ProcessTableModel::data(const QModelIndex& index, int role) const {
    const ProcessColumn& column = columnOf(index);
    const ProcessTableRow& shown = row(index.row());
    if (role == Qt::DisplayRole)
        return column.text(shown, *m_facts);
    if (role == Qt::TextAlignmentRole)
        return headData(column, role);
    if (role == Qt::AccessibleTextRole)
        return spokenText(column, shown);
    if (role == Qt::AccessibleDescriptionRole)
        return tr("%1, row %2 of %3").arg(ProcessColumns::title(column)).arg(index.row() + 1).arg(rowCount());
    return {};
}

/// Returns the text of a cell with what is painted beside it.
QString ProcessTableModel::spokenText(const ProcessColumn& column, const ProcessTableRow& row) const {
    const QString name = Formatters::visible(row.first.name);
    if (column.kind == Kind::actions) {
        QStringList actions;
        for (const RowAction action : buttonsOf(row))
            actions.append(helpOf(action, row));
        return actions.isEmpty() ? QString() : tr("%1: %2").arg(name, Formatters::list(actions));
    }
    const QString text = column.text(row, *m_facts);
    if (column.kind != Kind::name)
        return text;
    QStringList parts{isGrouped() && row.processes.size() > 1
                          ? QStringLiteral("%1 ×%2").arg(text, QString::number(row.processes.size()))
                          : text};
    if (m_listing == ProcessListing::tree)
        parts.append(tr("level %1").arg(row.depth + 1));
    if (row.branch != Branch::none)
        parts.append(row.branch == Branch::folded ? tr("folded") : tr("open"));
    if (row.isGone)
        parts.append(tr("ended"));
    else if (row.isLeaving)
        parts.append(tr("asked to end"));
    return Formatters::list(parts);
}

QVariant ProcessTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal ? headData(*m_columns[section], role) : QVariant();
}
