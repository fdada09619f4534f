#pragma once

#include "Core/Sessions/ProcessTree.h"
#include "UI/Processes/ProcessRowKey.h"

#include <QSet>

#include <functional>
#include <vector>

/// The rows of the processes as a tree: children below their parents, a folded branch in one row.
class ProcessBranches {
public:
    /// The processes outlive the branches.
    ProcessBranches(const QList<ProcSample>& processes, const QSet<ProcessRowKey>& folded);

    /// Returns the rows of those that are shown and of all their parents. `sort` orders them; rows that have
    /// the same parent stand in that order.
    QList<ProcessTableRow> rows(const std::function<bool(const ProcSample&)>& isShown,
                                const std::function<void(QList<ProcessTableRow>&)>& sort);

private:
    using Places = std::vector<int>;

    bool isFolded(int place) const;
    void keep(int place);
    ProcessTableRow row(int place) const;
    void addBranch(int place, ProcessTableRow& row) const;
    void append(QList<ProcessTableRow>& rows, QList<ProcessTableRow>& sorted) const;

    ProcessTree m_tree;
    const QSet<ProcessRowKey>& m_folded;
    std::vector<Places> m_children; ///< of all, by the parent's place
    std::vector<bool> m_kept;       ///< shown, or above what is shown
    std::vector<Places> m_shown;    ///< rows of the children that are kept, in order, by the parent's place
    Places m_roots;                 ///< rows of what has no parent
};
