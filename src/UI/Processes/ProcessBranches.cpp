#include "UI/Processes/ProcessBranches.h"

#include <algorithm>
#include <utility>

namespace {

std::size_t index(int place) {
    return static_cast<std::size_t>(place);
}

} // namespace

ProcessBranches::ProcessBranches(const QList<ProcSample>& processes, const QSet<ProcessRowKey>& folded)
    : m_tree(processes)
    , m_folded(folded)
    , m_children(index(m_tree.size()))
    , m_kept(index(m_tree.size()))
    , m_shown(index(m_tree.size())) {
    for (int place = 0; place < m_tree.size(); ++place) {
        const int parent = m_tree.parent(place);
        if (parent != ProcessTree::none)
            m_children[index(parent)].push_back(place);
    }
}

bool ProcessBranches::isFolded(int place) const {
    return !m_folded.isEmpty() && m_folded.contains(ProcessRowKey::of(m_tree.at(place)));
}

void ProcessBranches::keep(int place) {
    for (; place != ProcessTree::none && !m_kept[index(place)]; place = m_tree.parent(place))
        m_kept[index(place)] = true;
}

QList<ProcessTableRow> ProcessBranches::rows(const std::function<bool(const ProcSample&)>& isShown,
                                             const std::function<void(QList<ProcessTableRow>&)>& sort) {
    for (int place = 0; place < m_tree.size(); ++place) {
        if (isShown(m_tree.at(place)))
            keep(place);
    }
    QList<ProcessTableRow> sorted;
    std::vector<bool> isHidden(m_kept.size()); // below a folded branch
    for (const int place : m_tree.parentsFirst()) {
        const int parent = m_tree.parent(place);
        isHidden[index(place)] = parent != ProcessTree::none && (isHidden[index(parent)] || isFolded(parent));
    }
    for (int place = 0; place < m_tree.size(); ++place) {
        if (m_kept[index(place)] && !isHidden[index(place)])
            sorted.append(row(place));
    }
    sort(sorted);
    for (int at = 0; at < sorted.size(); ++at) {
        const int parent = m_tree.parent(m_tree.find(sorted[at].first.pid));
        (parent == ProcessTree::none ? m_roots : m_shown[index(parent)]).push_back(at);
    }
    QList<ProcessTableRow> rows;
    rows.reserve(sorted.size());
    append(rows, sorted);
    return rows;
}

/// Appends the roots, each with what is below it. A chain of parents is at most as deep as the machine has
/// processes, so it is followed with a list instead of calls.
void ProcessBranches::append(QList<ProcessTableRow>& rows, QList<ProcessTableRow>& sorted) const {
    std::vector<std::pair<int, int>> waiting; // rows and their depths, the next one last
    for (auto each = m_roots.rbegin(); each != m_roots.rend(); ++each)
        waiting.emplace_back(*each, 0);
    while (!waiting.empty()) {
        const auto [at, level] = waiting.back();
        waiting.pop_back();
        const int place = m_tree.find(sorted[at].first.pid);
        rows.append(std::move(sorted[at]));
        rows.last().depth = level;
        const Places& below = m_shown[index(place)];
        for (auto each = below.rbegin(); each != below.rend(); ++each)
            waiting.emplace_back(*each, level + 1);
    }
}

ProcessTableRow ProcessBranches::row(int place) const {
    const ProcSample& process = m_tree.at(place);
    ProcessTableRow row{.first = process, .cpuPercent = process.cpuPercent};
    const Places& below = m_children[index(place)];
    const auto isKept = [this](int child) { return m_kept[index(child)]; };
    if (!below.empty() && isFolded(place)) {
        row.branch = ProcessTableRow::Branch::folded;
        addBranch(place, row);
    } else if (std::ranges::any_of(below, isKept)) {
        row.branch = ProcessTableRow::Branch::open;
    }
    return row;
}

/// Makes the figures of a row the sums over its branch.
void ProcessBranches::addBranch(int place, ProcessTableRow& row) const {
    row.cpuPercent = 0;
    Places waiting{place};
    while (!waiting.empty()) {
        const int next = waiting.back();
        waiting.pop_back();
        const ProcSample& process = m_tree.at(next);
        row.processes.append(process);
        row.memory.add(process);
        row.cpuPercent += process.cpuPercent;
        const Places& below = m_children[index(next)];
        waiting.insert(waiting.end(), below.begin(), below.end());
    }
}
