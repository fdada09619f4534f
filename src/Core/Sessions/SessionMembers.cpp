#include "Core/Sessions/SessionMembers.h"

#include "Core/Grouping/KnownPrograms.h"
#include "Core/Mcp/MCPInspector.h"
#include "Platform/Clock.h"
#include "Platform/Identity.h"
#include "Platform/Platform.h"
#include "Platform/Words.h"

#include <QDir>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int readsPerPass = 50; // each opens three files
constexpr qint32 initPid = 1;

bool runsAgent(const ProcSample& process) {
    if (const auto* known = KnownPrograms::of(process))
        return known->group == ProcGroup::agents && known->hostsServers;
    return process.group == ProcGroup::agents && MCPInspector::isHost(process);
}

/// Returns whether a process may not have its environment yet, which exec(2) sets up last.
bool isStarting(const ProcSample& process, Instant now) {
    return process.startTime <= now && now - process.startTime < std::chrono::seconds(1);
}

QString agentName(const ProcSample& host) {
    const auto* known = KnownPrograms::of(host);
    return AgentTable::typedName(known ? known->name.toString() : host.name);
}

std::size_t index(int place) {
    return static_cast<std::size_t>(place);
}

/// Compares texts that mostly are one and the same, without a look at their characters.
bool isSame(const QString& one, const QString& other) {
    return (one.constData() == other.constData() && one.size() == other.size()) || one == other;
}

} // namespace

SessionMembers::SessionMembers(const Platform& platform)
    : m_table(platform.processes)
    , m_identity(platform.identity)
    , m_clock(platform.clock)
    , m_directUse(platform.applications) {}

void SessionMembers::follow(const ProcessTree& tree) {
    ++m_pass;
    m_userId = m_identity->userId(); // once, as it is compared with each process's
    record(tree);
    findHosts(tree);
    assign(tree);
}

void SessionMembers::record(const ProcessTree& tree) {
    m_records.resize(index(tree.size()));
    m_agents.clear();
    for (int place = 0; place < tree.size(); ++place) {
        const ProcSample& process = tree.at(place);
        Process& record = m_processes[process.pid];
        if (record.pass == 0 || record.startTime != process.startTime)
            record = {.startTime = process.startTime};
        const bool isNew = record.pass == 0;
        m_mayHaveUnread |= isNew;
        if (isNew || !isSame(record.name, process.name) || !isSame(record.program, process.program)) {
            record.name = process.name;
            record.program = process.program;
            record.isAgent = runsAgent(process);
            record.isManager = process.pid == initPid || process.name == Words::native().initProcess ||
                               process.name == "systemd"_L1;
        }
        record.pass = m_pass;
        m_records[index(place)] = &record;
        if (record.isAgent && isOfUser(process))
            m_agents.push_back(place);
    }
    if (m_processes.size() == m_records.size())
        return;
    std::erase_if(m_processes, [this](const auto& entry) { return entry.second.pass != m_pass; });
    m_inherited.removeIf([this](const auto& entry) { return !m_processes.contains(entry.key()); });
    followLeaders();
}

/// Notes since when no process has the number of a process session.
void SessionMembers::followLeaders() {
    QSet<qint32> used;
    for (const Inherited& inherited : std::as_const(m_inherited))
        used.insert(inherited.facts.sessionLeader);
    for (auto known = m_sessionOfLeader.begin(); known != m_sessionOfLeader.end(); ++known) {
        if (!known->unusedSince && !used.contains(known.key()))
            known->unusedSince = m_clock->now();
    }
}

std::optional<ProcessInheritance> SessionMembers::inheritance(const ProcessIdentity& process) const {
    const auto found = m_processes.find(process.pid);
    const bool isKnown =
        found != m_processes.end() && found->second.startTime == process.startTime && found->second.isRead;
    return isKnown ? std::optional(m_inherited.value(process.pid).facts) : std::nullopt;
}

bool SessionMembers::isOfUser(const ProcSample& process) const {
    return process.uid == m_userId;
}

bool SessionMembers::isBelowAgent(const ProcessTree& tree, int place) const {
    for (int above = tree.parent(place); above != none; above = tree.parent(above)) {
        if (recordAt(above).isAgent && isOfUser(tree.at(above)))
            return true;
    }
    return false;
}

/// Finds the agents without another above them. Each has a session.
void SessionMembers::findHosts(const ProcessTree& tree) {
    m_hostAt.assign(index(tree.size()), none);
    for (Known& session : m_known)
        session.isRunning = false;
    for (const int place : m_agents) {
        if (isBelowAgent(tree, place))
            continue;
        m_hostAt[index(place)] = place;
        m_known[sessionOfHost(tree.at(place))].isRunning = true;
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
    QSet<int> inUse;
    for (const int place : tree.parentsFirst()) {
        const int session = sessionBelow(tree, place);
        m_mayHaveUnread |= session != recordAt(place).session;
        m_sessionAt[index(place)] = session;
        recordAt(place).session = session;
        if (session != none)
            inUse.insert(session);
    }
    forget(inUse);
}

int SessionMembers::sessionBelow(const ProcessTree& tree, int place) {
    const ProcSample& process = tree.at(place);
    const int parent = tree.parent(place);
    const int above = parent != none ? m_sessionAt[index(parent)] : none;
    int& host = m_hostAt[index(place)];
    if (host == none && parent != none)
        host = m_hostAt[index(parent)];
    if (host != none && host != place)
        return m_sessionAt[index(host)];
    const int own = recordAt(place).session;
    const int kept = own != none && m_known.contains(own) ? own : above;
    if (host == place) // below another session's process, or adopted by one, it is a part of that
        return kept != none && m_known.value(kept).isRunning ? kept : sessionOfHost(process);
    if (parent != none && m_isUsed[index(parent)])
        m_isUsed[index(place)] = true;
    else if (kept != none && !isHelper(tree, place))
        m_isUsed[index(place)] = m_directUse.contains(process);
    return m_isUsed[index(place)] ? none : kept;
}

/// Returns whether a process is a part of the controlled browser that is its parent, or a crash handler.
bool SessionMembers::isHelper(const ProcessTree& tree, int place) const {
    const int parent = tree.parent(place);
    const bool isBelow = parent != none && m_sessionAt[index(parent)] != none;
    return DirectUse::isCrashHandler(tree.at(place)) ||
           (isBelow && tree.at(place).group == ProcGroup::browsers &&
            tree.at(parent).group == ProcGroup::browsers);
}

void SessionMembers::forget(const QSet<int>& inUse) {
    if (m_known.size() == inUse.size())
        return;
    m_known.removeIf([&inUse](const auto& entry) { return !inUse.contains(entry.key()); });
    const auto isForgotten = [this](const auto& entry) { return !m_known.contains(entry.value()); };
    m_sessionOfHost.removeIf(isForgotten);
    m_sessionOfLeader.removeIf(
        [this](const auto& entry) { return !m_known.contains(entry.value().session); });
}

void SessionMembers::addWord(int session, const QString& id, const QString& folder) {
    const auto known = m_known.find(session);
    if (known == m_known.end())
        return;
    if (!id.isEmpty() && !known->ids.contains(id)) {
        known->ids.insert(id);
        m_hasNews = true;
    }
    if (!folder.isEmpty())
        known->folder = folder;
}

void SessionMembers::readInheritance(const ProcessTree& tree) {
    int reads = 0;
    const Instant now = m_clock->now();
    for (const int place : std::exchange(m_mayHaveUnread, false) ? tree.parentsFirst() : std::vector<int>()) {
        const bool isWanted = !recordAt(place).isRead && isOfUser(tree.at(place)) &&
                              (m_sessionAt[index(place)] != none || isTop(tree, place));
        if (!isWanted)
            continue;
        if (isStarting(tree.at(place), now)) {
            m_mayHaveUnread = true;
            continue;
        }
        if (reads == readsPerPass) {
            m_mayHaveUnread = true;
            break;
        }
        ++reads;
        readMember(tree, place);
        m_hasNews = true;
    }
    if (std::exchange(m_hasNews, false))
        adoptAll(tree);
}

void SessionMembers::adoptAll(const ProcessTree& tree) {
    bool hasAdopted = false;
    for (const int place : tree.parentsFirst())
        hasAdopted |= adopt(tree, place);
    m_hasNews = hasAdopted; // it may tell at the next tick whose others are
    if (hasAdopted)
        assign(tree);
}

/// Returns whether nothing of the user's is above the process: what lost its parent is there.
bool SessionMembers::isTop(const ProcessTree& tree, int place) const {
    if (tree.at(place).pid == initPid)
        return false;
    const int parent = tree.parent(place);
    return parent == none || recordAt(parent).isManager || !isOfUser(tree.at(parent));
}

/// Reads what a process inherited. What it says of its session is learnt from a member.
void SessionMembers::readMember(const ProcessTree& tree, int place) {
    const ProcSample& process = tree.at(place);
    recordAt(place).isRead = true;
    Inherited& inherited = m_inherited[process.pid];
    inherited.facts = m_table->inheritance(process.pid, AgentTable::variables());
    inherited.mark = AgentTable::markIn(inherited.facts.variables);
    const auto session = m_known.find(m_sessionAt[index(place)]);
    if (session == m_known.end())
        return;
    const int leader = tree.find(inherited.facts.sessionLeader);
    if (leader != none && m_sessionAt[index(leader)] == session.key())
        m_sessionOfLeader.insert(inherited.facts.sessionLeader, {.session = session.key()});
    if (session->host == process.identity())
        readHost(tree, place, *session);
    else if (session->isRunning && inherited.mark && inherited.mark->agent == session->agent &&
             inherited.mark != markOf(session->host->pid))
        session->ids.insert(inherited.mark->id); // one that the host itself inherited is of another session
}

void SessionMembers::readHost(const ProcessTree& tree, int place, Known& session) {
    const ProcSample& host = tree.at(place);
    session.folder = QDir::cleanPath(QString::fromUtf8(m_table->workingDirectory(host.pid)));
    const int parent = tree.parent(place);
    const QByteArray group = m_inherited.value(host.pid).facts.controlGroup;
    if (parent == none)
        return;
    const QByteArray above = m_table->inheritance(tree.at(parent).pid, {}).controlGroup;
    if (!above.isEmpty() && above != group) // an unreadable one says nothing
        session.controlGroup = group;
}

std::optional<AgentTable::Mark> SessionMembers::markOf(qint32 pid) const {
    return m_inherited.value(pid).mark;
}

/// Gives a process that lost its parent to the session that it inherited from. Returns whether it did.
bool SessionMembers::adopt(const ProcessTree& tree, int place) {
    Process& record = recordAt(place);
    if (!record.isRead || m_isUsed[index(place)] || !isTop(tree, place))
        return false;
    const ProcSample& process = tree.at(place);
    if (m_hostAt[index(place)] == place)
        return adoptAgent(process, record);
    if (record.session != none)
        return false;
    const bool isCrashHandler = DirectUse::isCrashHandler(process);
    if (!isCrashHandler && m_directUse.contains(process))
        return false;
    const int session = sessionInherited(tree, process);
    if (isCrashHandler && !hasProgramBeside(tree, session, process))
        return false;
    record.session = session;
    return session != none;
}

/// Returns whether a process of the session runs a program from the same folder.
bool SessionMembers::hasProgramBeside(const ProcessTree& tree, int session, const ProcSample& process) const {
    const auto folderOf = [](const QString& path) {
        return QStringView(path).first(path.lastIndexOf(u'/') + 1);
    };
    for (int place = 0; place < tree.size(); ++place) {
        if (m_sessionAt[index(place)] == session &&
            folderOf(tree.at(place).executablePath) == folderOf(process.executablePath))
            return true;
    }
    return false;
}

/// An agent that another one started in the background is a part of its session while that runs.
bool SessionMembers::adoptAgent(const ProcSample& process, Process& record) {
    const auto mark = markOf(process.pid);
    const int session = mark ? sessionWithId(*mark) : none;
    const Known other = m_known.value(session);
    if (session == record.session || !other.isRunning || other.host == process.identity())
        return false;
    record.session = session;
    return true;
}

int SessionMembers::sessionInherited(const ProcessTree& tree, const ProcSample& process) {
    const Inherited inherited = m_inherited.value(process.pid);
    if (inherited.mark)
        return sessionOfMark(*inherited.mark, process);
    const qint32 leader = inherited.facts.sessionLeader;
    const Leader learnt = m_sessionOfLeader.value(leader);
    // The number of a process session can be used again when no process has it any more.
    const bool isOfTime = !learnt.unusedSince || process.startTime <= *learnt.unusedSince;
    const int ofLeader = isOfTime ? learnt.session : none;
    const int place = tree.find(leader);
    if (ofLeader != none && leader != process.pid && (place == none || m_sessionAt[index(place)] == ofLeader))
        return ofLeader;
    const QByteArray& group = inherited.facts.controlGroup;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        if (!known->controlGroup.isEmpty() && known->controlGroup == group)
            return known.key();
    }
    return none;
}

int SessionMembers::sessionWithId(const AgentTable::Mark& mark) const {
    int found = none;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        const bool isNamed = known->agent == mark.agent && known->ids.contains(mark.id);
        if (isNamed && (found == none || known->isRunning))
            found = known.key(); // a conversation that was taken up again has the id of the ended one
    }
    return found;
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
