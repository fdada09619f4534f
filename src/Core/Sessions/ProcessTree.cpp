#include "Core/Sessions/ProcessTree.h"

#include <algorithm>

ProcessTree::ProcessTree(const QList<ProcSample>& processes)
    : m_processes(processes)
    , m_parents(static_cast<std::size_t>(processes.size()), none) {
    m_places.reserve(processes.size());
    for (int place = 0; place < size(); ++place)
        m_places.insert(processes[place].pid, place);
    for (int place = 0; place < size(); ++place)
        m_parents[static_cast<std::size_t>(place)] = find(processes[place].parentPid);
    sortParentsFirst();
}

void ProcessTree::sortParentsFirst() {
    enum class State : quint8 { unseen, inChain, listed };
    std::vector<State> states(m_parents.size(), State::unseen);
    const auto stateOf = [&states](int place) -> State& { return states[static_cast<std::size_t>(place)]; };
    std::vector<int> chain;
    m_order.reserve(m_parents.size());
    for (int place = 0; place < size(); ++place) {
        chain.clear();
        int at = place;
        for (; at != none && stateOf(at) == State::unseen; at = parent(at)) {
            stateOf(at) = State::inChain;
            chain.push_back(at);
        }
        if (at != none && stateOf(at) == State::inChain)
            m_parents[static_cast<std::size_t>(chain.back())] = none;
        for (const int each : chain)
            stateOf(each) = State::listed;
        m_order.insert(m_order.end(), chain.rbegin(), chain.rend());
    }
}
