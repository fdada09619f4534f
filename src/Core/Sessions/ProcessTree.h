#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QHash>
#include <QList>

#include <vector>

/// The processes of one pass as a tree. Processes are named by their place in the list, which outlives the
/// tree. A cycle, which a reused PID can make, is cut.
class ProcessTree {
public:
    explicit ProcessTree(const QList<ProcSample>& processes);

    static constexpr int none = -1;

    int size() const { return static_cast<int>(m_parents.size()); }
    const ProcSample& at(int place) const { return m_processes[place]; }
    /// Returns the place of a PID, or `none`.
    int find(qint32 pid) const { return m_places.value(pid, none); }
    /// Returns the place of the parent, or `none`.
    int parent(int place) const { return m_parents[static_cast<std::size_t>(place)]; }
    /// Returns all places, each after its parent.
    const std::vector<int>& parentsFirst() const { return m_order; }

private:
    void sortParentsFirst();

    const QList<ProcSample>& m_processes;
    QHash<qint32, int> m_places;
    std::vector<int> m_parents;
    std::vector<int> m_order;
};
