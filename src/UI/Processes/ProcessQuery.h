#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

#include <optional>

/// All processes of one name.
struct GroupedRow {
    QString name;
    ProcGroup group = ProcGroup::other; ///< that of the first
    QList<ProcSample> processes;
    quint64 totalRSS = 0; ///< bytes
    double totalCPU = 0;  ///< percent of a core
};

/// Which processes the user wants to see, and in which order.
struct ProcessQuery {
    QString search; ///< part of a name or path, in any case; empty for all
    std::optional<ProcGroup> groupFilter;
    QString sortBy = QStringLiteral("ram"); ///< id of a column
    double minRSSMB = 50;                   ///< MiB

    bool operator==(const ProcessQuery&) const = default;

    /// Largest first; names in the user's alphabetical order. Equals keep their order.
    QList<ProcSample> filteredAndSorted(const QList<ProcSample>& processes) const;
    /// Of the same processes one row a name, the largest total first.
    QList<GroupedRow> groupedRows(const QList<ProcSample>& processes) const;
};
