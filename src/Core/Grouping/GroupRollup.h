#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

/// Totals of one group in one pass.
struct GroupRollup {
    ProcGroup group = ProcGroup::other;
    quint64 rssBytes = 0;
    double cpuPercent = 0;
    int count = 0;

    bool operator==(const GroupRollup&) const = default;

    /// Exactly one rollup per group, in group order, zeros included.
    static QList<GroupRollup> build(const QList<ProcSample>& processes);
};
