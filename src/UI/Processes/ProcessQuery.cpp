#include "UI/Processes/ProcessQuery.h"

#include "Core/Inspection/ProcessFacts.h"
#include "UI/Processes/ProcessBranches.h"

#include <algorithm>
#include <limits>

struct ProcessQuery::Filter {
    Filter(const ProcessQuery& query, const ProcessQueryInput& input)
        : minBytes(static_cast<quint64>(query.minRSSMB) << 20)
        , group(query.groupFilter)
        , words(query.search) {
        if (ProcessFacts* facts = input.facts.facts)
            listens = [facts](qint32 pid, quint16 port) { return facts->listens(pid, port); };
    }

    bool isLarge(const ProcSample& process) const { return process.rssBytes >= minBytes; }
    bool isInGroup(const ProcSample& process) const { return !group || *group == process.group; }
    bool isFound(const ProcSample& process) const { return words.isEmpty() || words.match(process, listens); }
    bool passes(const ProcSample& process) const {
        return isLarge(process) && isInGroup(process) && isFound(process);
    }

    quint64 minBytes;
    std::optional<ProcGroup> group;
    SearchWords words;
    SearchWords::Listens listens;
};

QList<ProcessTableRow> ProcessQuery::rows(const ProcessQueryInput& input) const {
    if (listing == ProcessListing::flat)
        return flatRows(input);
    if (listing == ProcessListing::byName)
        return groupedRows(input);
    const Filter filter(*this, input);
    const auto isShown = [&](const ProcSample& process) {
        return filter.passes(process) || input.held.contains(ProcessRowKey::of(process));
    };
    ProcessBranches branches(input.processes, input.folded);
    return branches.rows(isShown, [&](QList<ProcessTableRow>& rows) { sort(rows, input); });
}

QList<ProcessTableRow> ProcessQuery::flatRows(const ProcessQueryInput& input) const {
    const Filter filter(*this, input);
    QHash<QString, int> counts;
    for (const ProcSample& process : input.processes)
        ++counts[process.name];
    QList<ProcessTableRow> rows;
    rows.reserve(input.processes.size());
    for (const ProcSample& process : input.processes) {
        if (filter.passes(process) ||
            (!input.held.isEmpty() && input.held.contains(ProcessRowKey::of(process))))
            rows.append(
                {.first = process, .cpuPercent = process.cpuPercent, .sameName = counts.value(process.name)});
    }
    sort(rows, input);
    return rows;
}

QList<ProcessTableRow> ProcessQuery::groupedRows(const ProcessQueryInput& input) const {
    const Filter filter(*this, input);
    QList<ProcessTableRow> rows;
    QHash<QString, qsizetype> rowOf;
    for (const ProcSample& process : input.processes) {
        if (!filter.passes(process))
            continue;
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
    sort(rows, input);
    return rows;
}

void ProcessQuery::sort(QList<ProcessTableRow>& rows, const ProcessQueryInput& input) const {
    if (const ProcessColumn* column = ProcessColumns::withId(sortBy))
        ProcessColumns::sort(rows, *column, isTurned, input.facts);
    if (input.held.isEmpty())
        return;
    std::ranges::stable_sort(rows, {}, [&](const ProcessTableRow& row) {
        return input.held.value(ProcessRowKey::of(row, listing == ProcessListing::byName),
                                std::numeric_limits<int>::max());
    });
}

ProcessQuery::Hidden ProcessQuery::hidden(const ProcessQueryInput& input) const {
    const Filter filter(*this, input);
    Hidden hidden;
    for (const ProcSample& process : input.processes) {
        const bool isLarge = filter.isLarge(process);
        const bool isInGroup = filter.isInGroup(process);
        const bool isFound = filter.isFound(process);
        hidden.bySize += !isLarge && isInGroup && isFound;
        hidden.byGroup += isLarge && !isInGroup && isFound;
        hidden.bySearch += isLarge && isInGroup && !isFound;
        hidden.all += !isLarge || !isInGroup || !isFound;
    }
    return hidden;
}
