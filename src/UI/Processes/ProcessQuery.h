#pragma once

#include "UI/Processes/ProcessColumns.h"

#include <optional>

/// The processes that the user wants to see, and their order.
struct ProcessQuery {
    QString search; ///< part of a name or path, case-insensitive; empty for all
    std::optional<ProcGroup> groupFilter;
    QString sortBy = QStringLiteral("ram"); ///< id of a column
    double minRSSMB = 50;                   ///< MiB

    bool operator==(const ProcessQuery&) const = default;

    /// Returns a row for each process that matches, the largest first or by name in the user's alphabetical
    /// order. Equal ones keep their order.
    QList<ProcessTableRow> flatRows(const QList<ProcSample>& processes) const;
    /// Returns a row for each name of these processes, the largest total first.
    QList<ProcessTableRow> groupedRows(const QList<ProcSample>& processes) const;
};
