#pragma once

#include "Core/Memory/SummedMemory.h"

#include <QList>

/// Totals of one group in one pass.
struct GroupRollup {
    ProcGroup group = ProcGroup::other;
    quint64 rssBytes = 0;
    double cpuPercent = 0;
    int count = 0;
    SummedMemory memory; ///< of the members, shared pages once

    bool operator==(const GroupRollup&) const = default;

    /// Returns one rollup per group, in group order.
    static QList<GroupRollup> build(const QList<ProcSample>& processes);
};

inline QList<GroupRollup> GroupRollup::build(const QList<ProcSample>& processes) {
    QList<GroupRollup> rollups;
    for (const ProcGroup group : allCases<ProcGroup>())
        rollups.append({.group = group});
    for (const ProcSample& process : processes) {
        GroupRollup& rollup = rollups[static_cast<qsizetype>(process.group)];
        rollup.rssBytes += process.rssBytes;
        rollup.cpuPercent += process.cpuPercent;
        ++rollup.count;
        rollup.memory.add(process);
    }
    return rollups;
}
