#include "Core/Sessions/SessionMembers.h"

#include "Core/Grouping/KnownPrograms.h"
#include "Core/Mcp/MCPInspector.h"
#include "Platform/Clock.h"
#include "Platform/Identity.h"
#include "Platform/Platform.h"
#include "Platform/Words.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int readsPerPass = 50; // of 20 to 40 µs each; an environment of 2 MiB takes a millisecond
constexpr qint32 initPid = 1;

bool runsAgent(const ProcSample& process) {
    if (const auto* known = KnownPrograms::of(process))
        return known->group == ProcGroup::agents && known->hostsServers;
    return process.group == ProcGroup::agents && MCPInspector::isHost(process);
}

QString agentName(const ProcSample& host) {
    const auto* known = KnownPrograms::of(host);
    return AgentTable::typedName(known ? known->name.toString() : host.name);
}

std::size_t index(int place) {
    return static_cast<std::size_t>(place);
}

} // namespace

SessionMembers::SessionMembers(const Platform& platform)
    : m_table(platform.processes)
    , m_identity(platform.identity)
    , m_clock(platform.clock)
    , m_directUse(platform.applications) {}

void SessionMembers::follow(const ProcessTree& tree) {
    ++m_pass;
    findHosts(tree);
    assign(tree);
    forgetEnded();
}

SessionMembers::Process& SessionMembers::recordOf(const ProcSample& process) {
    Process& record = m_processes[process.pid];
    if (record.startTime != process.startTime)
        record = {.startTime = process.startTime};
    const bool isNew = record.pass == 0;
    if (isNew || record.name != process.name || record.program != process.program) {
        record.name = process.name;
        record.program = process.program;
        record.isAgent = runsAgent(process);
    }
    record.pass = m_pass;
    return record;
}

bool SessionMembers::isAgent(const ProcSample& process) {
    return recordOf(process).isAgent;
}

std::optional<ProcessInheritance> SessionMembers::inheritance(const ProcessIdentity& process) const {
    const auto found = m_processes.constFind(process.pid);
    return found != m_processes.cend() && found->startTime == process.startTime ? found->inherited
                                                                                : std::nullopt;
}

bool SessionMembers::isOfUser(const ProcSample& process) const {
    return process.uid == m_identity->userId();
}

/// Finds the agents without another above them. Each has a session.
void SessionMembers::findHosts(const ProcessTree& tree) {
    m_hostAt.assign(index(tree.size()), none);
    for (Known& session : m_known)
        session.isRunning = false;
    for (const int place : tree.parentsFirst()) {
        const ProcSample& process = tree.at(place);
        const int parent = tree.parent(place);
        const bool isAgent = recordOf(process).isAgent && isOfUser(process);
        m_hostAt[index(place)] = parent != none && m_hostAt[index(parent)] != none ? m_hostAt[index(parent)]
                                 : isAgent                                         ? place
                                                                                   : none;
        if (m_hostAt[index(place)] == place)
            m_known[sessionOfHost(process)].isRunning = true;
    }
    for (Known& session : m_known) {
        if (session.host && !session.isRunning && !session.ended)
            session.ended = m_clock->now();
    }
}

int SessionMembers::sessionOfHost(const ProcSample& host) {
    const auto found = m_sessionOfHost.constFind(host.pid);
    if (found != m_sessionOfHost.cend() && m_known.value(*found).host == host.identity())
        return *found;
    const int number = ++m_lastNumber;
    m_known.insert(number, {.host = host.identity(), .agent = agentName(host)});
    m_sessionOfHost.insert(host.pid, number);
    return number;
}

/// Gives each process its session: that of the agent above it, else the one that it or its parent had.
void SessionMembers::assign(const ProcessTree& tree) {
    m_sessionAt.assign(index(tree.size()), none);
    m_isUsed.assign(index(tree.size()), false);
    for (const int place : tree.parentsFirst()) {
        const int session = sessionBelow(tree, place);
        m_sessionAt[index(place)] = session;
        recordOf(tree.at(place)).session = session;
    }
}

int SessionMembers::sessionBelow(const ProcessTree& tree, int place) {
    const ProcSample& process = tree.at(place);
    const int parent = tree.parent(place);
    const int above = parent != none ? m_sessionAt[index(parent)] : none;
    const int host = m_hostAt[index(place)];
    if (host != none && host != place)
        return m_sessionAt[index(host)];
    const int own = recordOf(process).session;
    const int kept = own != none && m_known.contains(own) ? own : above;
    if (host == place) // below another session's process, or adopted by one, it is a part of that
        return kept != none && m_known.value(kept).isRunning ? kept : sessionOfHost(process);
    if (parent != none && m_isUsed[index(parent)])
        m_isUsed[index(place)] = true;
    else if (kept != none)
        m_isUsed[index(place)] = m_directUse.contains(process);
    return m_isUsed[index(place)] ? none : kept;
}

void SessionMembers::forgetEnded() {
    QSet<int> inUse;
    m_processes.removeIf([this](const auto& entry) { return entry->pass != m_pass; });
    for (const Process& process : m_processes)
        inUse.insert(process.session);
    m_known.removeIf([&inUse](const auto& entry) { return !inUse.contains(entry.key()); });
    const auto isForgotten = [this](const auto& entry) { return !m_known.contains(entry.value()); };
    m_sessionOfHost.removeIf(isForgotten);
    m_sessionOfLeader.removeIf(isForgotten);
}

void SessionMembers::addWord(int session, const QString& id, const QString& folder) {
    const auto known = m_known.find(session);
    if (known == m_known.end())
        return;
    if (!id.isEmpty())
        known->ids.insert(id);
    if (!folder.isEmpty())
        known->folder = folder;
}

void SessionMembers::readInheritance(const ProcessTree& tree) {
    int reads = 0;
    bool hasAdopted = false;
    for (const int place : tree.parentsFirst()) {
        const ProcSample& process = tree.at(place);
        const bool isMember = m_sessionAt[index(place)] != none;
        if (!isOfUser(process) || !(isMember || isTop(tree, place)))
            continue;
        if (!recordOf(process).inherited) {
            if (reads == readsPerPass)
                continue;
            ++reads;
            readMember(tree, place);
        }
        hasAdopted |= adopt(tree, place);
    }
    if (!hasAdopted)
        return;
    assign(tree);
    forgetEnded();
}

/// Returns whether nothing of the user's is above the process: what lost its parent is there.
bool SessionMembers::isTop(const ProcessTree& tree, int place) const {
    if (tree.at(place).pid == initPid)
        return false;
    const int parent = tree.parent(place);
    return parent == none || tree.at(parent).pid == initPid || !isOfUser(tree.at(parent)) ||
           tree.at(parent).name == Words::native().initProcess || tree.at(parent).name == "systemd"_L1;
}

/// Reads what a process inherited. What it says of its session is learnt from a member.
void SessionMembers::readMember(const ProcessTree& tree, int place) {
    const ProcSample& process = tree.at(place);
    Process& record = recordOf(process);
    record.inherited = m_table->inheritance(process.pid, AgentTable::variables());
    record.mark = AgentTable::markIn(record.inherited->variables);
    const auto session = m_known.find(m_sessionAt[index(place)]);
    if (session == m_known.end())
        return;
    const int leader = tree.find(record.inherited->sessionLeader);
    if (leader != none && m_sessionAt[index(leader)] == session.key())
        m_sessionOfLeader.insert(record.inherited->sessionLeader, session.key());
    if (session->host == process.identity()) {
        session->folder = QDir::cleanPath(QString::fromUtf8(m_table->workingDirectory(process.pid)));
        const int parent = tree.parent(place);
        const QByteArray& group = record.inherited->controlGroup;
        if (parent != none && group != m_table->inheritance(tree.at(parent).pid, {}).controlGroup)
            session->controlGroup = group;
        return;
    }
    // An id that the host itself inherited is of another session.
    const auto host = session->host ? m_processes.value(session->host->pid).mark : std::nullopt;
    if (session->isRunning && record.mark && record.mark->agent == session->agent && record.mark != host)
        session->ids.insert(record.mark->id);
}

/// Gives a process that lost its parent to the session that it inherited from. Returns whether it did.
bool SessionMembers::adopt(const ProcessTree& tree, int place) {
    const ProcSample& process = tree.at(place);
    Process& record = recordOf(process);
    if (!isTop(tree, place) || !record.inherited || m_isUsed[index(place)])
        return false;
    if (m_hostAt[index(place)] == place)
        return adoptAgent(process, record);
    if (record.session != none || m_directUse.contains(process))
        return false;
    record.session = sessionInherited(tree, process, record);
    return record.session != none;
}

/// An agent that another one started in the background is a part of its session while that runs.
bool SessionMembers::adoptAgent(const ProcSample& process, Process& record) {
    const int session = record.mark ? sessionWithId(*record.mark) : none;
    const Known other = m_known.value(session);
    if (session == record.session || !other.isRunning || other.host == process.identity())
        return false;
    record.session = session;
    return true;
}

int SessionMembers::sessionInherited(const ProcessTree& tree, const ProcSample& process,
                                     const Process& record) {
    if (record.mark)
        return sessionOfMark(*record.mark, process);
    const qint32 leader = record.inherited->sessionLeader;
    const int ofLeader = m_sessionOfLeader.value(leader, none);
    const int leaderAt = tree.find(leader);
    // The number of a process session is not used again while a process has it.
    if (ofLeader != none && leader != process.pid &&
        (leaderAt == none || m_sessionAt[index(leaderAt)] == ofLeader))
        return ofLeader;
    const QByteArray& group = record.inherited->controlGroup;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        if (!known->controlGroup.isEmpty() && known->controlGroup == group)
            return known.key();
    }
    return none;
}

int SessionMembers::sessionWithId(const AgentTable::Mark& mark) const {
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        if (known->agent == mark.agent && known->ids.contains(mark.id))
            return known.key();
    }
    return none;
}

/// Returns the session with that id. An id that none is known to have may be an earlier one of a running
/// session, which gets another with each new conversation. So in doubt the process belongs to the newest
/// session of that agent and folder that is older than the process.
int SessionMembers::sessionOfMark(const AgentTable::Mark& mark, const ProcSample& process) {
    if (const int named = sessionWithId(mark); named != none)
        return named;
    int heir = none;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        const bool mayBe = known->agent == mark.agent && known->isRunning && known->host &&
                           known->host->startTime <= process.startTime &&
                           (mark.folder.isEmpty() || known->folder.isEmpty() || known->folder == mark.folder);
        if (mayBe && (heir == none || known->host->startTime > m_known.value(heir).host->startTime))
            heir = known.key();
    }
    if (heir != none)
        return heir;
    m_known.insert(++m_lastNumber, {.agent = mark.agent, .folder = mark.folder, .ids = {mark.id}});
    return m_lastNumber;
}
