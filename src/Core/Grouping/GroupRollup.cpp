#include "Core/Grouping/GroupRollup.h"

QList<GroupRollup> GroupRollup::build(const QList<ProcSample>& processes) {
    QList<GroupRollup> rollups;
    for (const ProcGroup group : allCases<ProcGroup>())
        rollups.append({.group = group});
    for (const ProcSample& process : processes) {
        GroupRollup& rollup = rollups[static_cast<qsizetype>(process.group)];
        rollup.rssBytes += process.rssBytes;
        rollup.cpuPercent += process.cpuPercent;
        ++rollup.count;
    }
    return rollups;
}
