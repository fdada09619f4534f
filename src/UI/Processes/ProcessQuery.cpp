#include "UI/Processes/ProcessQuery.h"

#include <QHash>

#include <algorithm>
#include <functional>

namespace {

bool matches(const ProcSample& process, const QString& search) {
    return search.isEmpty() || process.name.contains(search, Qt::CaseInsensitive) ||
           process.executablePath.contains(search, Qt::CaseInsensitive);
}

QList<ProcSample> filteredAndSorted(const ProcessQuery& query, const QList<ProcSample>& processes) {
    const quint64 minBytes = static_cast<quint64>(query.minRSSMB) << 20;
    QList<ProcSample> result;
    result.reserve(processes.size());
    for (const ProcSample& process : processes) {
        if (process.rssBytes >= minBytes && (!query.groupFilter || query.groupFilter == process.group) &&
            matches(process, query.search))
            result.append(process);
    }
    const ProcessColumn* column = ProcessColumns::withId(query.sortBy);
    if (column && column->order.sort)
        column->order.sort(result);
    return result;
}

} // namespace

QList<ProcessTableRow> ProcessQuery::flatRows(const QList<ProcSample>& processes) const {
    QHash<QString, int> counts;
    for (const ProcSample& process : processes)
        ++counts[process.name];
    const QList<ProcSample> shown = filteredAndSorted(*this, processes);
    QList<ProcessTableRow> rows;
    rows.reserve(shown.size());
    for (const ProcSample& process : shown)
        rows.append(
            {.first = process, .cpuPercent = process.cpuPercent, .sameName = counts.value(process.name)});
    return rows;
}

QList<ProcessTableRow> ProcessQuery::groupedRows(const QList<ProcSample>& processes) const {
    QList<ProcessTableRow> rows;
    QHash<QString, qsizetype> rowOf;
    for (const ProcSample& process : filteredAndSorted(*this, processes)) {
        const auto found = rowOf.constFind(process.name);
        const qsizetype index = found == rowOf.constEnd() ? rows.size() : *found;
        if (index == rows.size()) {
            rowOf.insert(process.name, index);
            rows.append({.first = process, .sameName = 0});
        }
        ProcessTableRow& row = rows[index];
        row.processes.append(process);
        row.memory.add(process);
        row.cpuPercent += process.cpuPercent;
        ++row.sameName;
    }
    std::ranges::stable_sort(rows, std::ranges::greater(),
                             [](const ProcessTableRow& row) { return row.memory.bytes; });
    return rows;
}
