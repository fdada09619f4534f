#include "UI/Processes/ProcessQuery.h"

#include "UI/Processes/ProcessColumns.h"

#include <QHash>

#include <QStringList>
#include <algorithm>
#include <functional>

namespace {

bool matches(const ProcSample& process, const QString& search) {
    return search.isEmpty() || process.name.contains(search, Qt::CaseInsensitive) ||
           process.executablePath.contains(search, Qt::CaseInsensitive);
}

} // namespace

QList<ProcSample> ProcessQuery::filteredAndSorted(const QList<ProcSample>& processes) const {
    const quint64 minBytes = static_cast<quint64>(minRSSMB) << 20;
    QList<ProcSample> result;
    result.reserve(processes.size());
    for (const ProcSample& process : processes) {
        if (process.rssBytes >= minBytes && (!groupFilter || groupFilter == process.group) &&
            matches(process, search))
            result.append(process);
    }
    const ProcessColumn* column = ProcessColumns::withId(sortBy);
    if (column && column->order.sort)
        column->order.sort(result);
    return result;
}

QList<GroupedRow> ProcessQuery::groupedRows(const QList<ProcSample>& processes) const {
    QList<GroupedRow> rows;
    QHash<QString, qsizetype> rowOf;
    for (const ProcSample& process : filteredAndSorted(processes)) {
        const auto found = rowOf.constFind(process.name);
        const qsizetype index = found == rowOf.constEnd() ? rows.size() : *found;
        if (index == rows.size()) {
            rowOf.insert(process.name, index);
            rows.append({.name = process.name, .group = process.group});
        }
        GroupedRow& row = rows[index];
        row.processes.append(process);
        row.totalRSS += process.rssBytes;
        row.totalCPU += process.cpuPercent;
    }
    std::ranges::stable_sort(rows, std::ranges::greater(), &GroupedRow::totalRSS);
    return rows;
}
