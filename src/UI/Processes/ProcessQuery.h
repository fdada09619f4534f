#pragma once

#include "UI/Processes/ProcessRowKey.h"
#include "UI/Processes/SearchWords.h"

#include <QHash>
#include <QSet>

#include <optional>

/// How the processes stand in the table.
enum class ProcessListing {
    flat,
    byName, ///< a row for each name, the sort's first process standing for it
    tree    ///< children below their parents
};

/// What a query is asked of.
struct ProcessQueryInput {
    const QList<ProcSample>& processes; ///< largest resident memory first
    const ColumnFacts& facts;
    QSet<ProcessRowKey> folded = {};     ///< branches of the tree
    QHash<ProcessRowKey, int> held = {}; ///< rows that stay, in these places; empty for a new order
};

/// The processes that the user wants to see, and their order.
struct ProcessQuery {
    QString search; ///< see SearchWords
    std::optional<ProcGroup> groupFilter;
    QString sortBy = QStringLiteral("ram"); ///< id of a column
    bool isTurned = false;                  ///< the other way round than a column is sorted at first
    double minRSSMB = 50;                   ///< MiB
    ProcessListing listing = ProcessListing::flat;

    bool operator==(const ProcessQuery&) const = default;

    /// Returns the rows in their order. In the tree what matches stands below all its parents.
    QList<ProcessTableRow> rows(const ProcessQueryInput& input) const;

    /// How many processes each filter hides that all others let through.
    struct Hidden {
        int bySearch = 0;
        int byGroup = 0;
        int bySize = 0;
        int all = 0; ///< by any filter

        bool operator==(const Hidden&) const = default;
    };
    Hidden hidden(const ProcessQueryInput& input) const;

private:
    struct Filter;

    QList<ProcessTableRow> flatRows(const ProcessQueryInput& input) const;
    QList<ProcessTableRow> groupedRows(const ProcessQueryInput& input) const;
    void sort(QList<ProcessTableRow>& rows, const ProcessQueryInput& input) const;
};
