#include "UI/Processes/ProcessQuery.h"

#include <QCollator>
#include <QHash>

#include <QStringList>
#include <algorithm>
#include <functional>

namespace {

bool matches(const ProcSample& process, const QString& search) {
    return search.isEmpty() || process.name.contains(search, Qt::CaseInsensitive) ||
           process.executablePath.contains(search, Qt::CaseInsensitive);
}

/// Comparing names as people sort them is slow, and many processes share one: each name is placed once.
QHash<QString, int> ranks(const QList<ProcSample>& processes) {
    QHash<QString, int> result;
    for (const ProcSample& process : processes)
        result.insert(process.name, 0);
    QStringList names = result.keys();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(names.begin(), names.end(), collator);
    int rank = 0;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (i > 0 && collator.compare(names[i - 1], names[i]) != 0)
            ++rank;
        result[names[i]] = rank;
    }
    return result;
}

void sortByName(QList<ProcSample>& processes) {
    const QHash<QString, int> rank = ranks(processes);
    std::ranges::stable_sort(processes, {},
                             [&rank](const ProcSample& process) { return rank.value(process.name); });
}

} // namespace

QList<ProcSample> ProcessQuery::filteredAndSorted(const QList<ProcSample>& processes) const {
    const quint64 leastBytes = static_cast<quint64>(minRSSMB) << 20;
    QList<ProcSample> result;
    result.reserve(processes.size());
    for (const ProcSample& process : processes) {
        if (process.rssBytes >= leastBytes && (!groupFilter || groupFilter == process.group) &&
            matches(process, search))
            result.append(process);
    }
    switch (sortBy) {
    case SortBy::ram: // the order they come in from the model; sorting would move each of them about
        if (!std::ranges::is_sorted(result, std::ranges::greater(), &ProcSample::rssBytes))
            std::ranges::stable_sort(result, std::ranges::greater(), &ProcSample::rssBytes);
        break;
    case SortBy::cpu:
        std::ranges::stable_sort(result, std::ranges::greater(), &ProcSample::cpuPercent);
        break;
    case SortBy::name:
        sortByName(result);
        break;
    case SortBy::idle:
        std::ranges::stable_sort(result, std::ranges::greater(), &ProcSample::idleSeconds);
        break;
    }
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
