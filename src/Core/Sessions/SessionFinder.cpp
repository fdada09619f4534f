#include "Core/Sessions/SessionFinder.h"

#include "Core/Sessions/DuplicateServers.h"
#include "Core/Sessions/PackageVersion.h"
#include "Core/Sessions/ResumeCommand.h"
#include "Platform/Clock.h"
#include "Platform/Identity.h"
#include "Platform/Platform.h"

#include <QFile>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::LiveServer;

/// A server that reads from its host ends by itself shortly after it.
constexpr auto leftOverAfter = std::chrono::seconds(5);

SummedMemory memoryOf(const QList<SessionProcess>& processes) {
    SummedMemory sum;
    for (const SessionProcess& each : processes)
        sum.add(each.process);
    return sum;
}

QSet<qint32> pidsOf(const QList<LiveServer>& servers) {
    QSet<qint32> pids;
    for (const LiveServer& server : servers) {
        pids.insert(server.pid);
        for (const ProcessIdentity& launcher : server.launchers)
            pids.insert(launcher.pid);
    }
    return pids;
}

SessionPart partOf(const ProcSample& process, bool isAgent, bool isServer, bool listens) {
    if (isAgent)
        return SessionPart::agent;
    if (isServer)
        return SessionPart::server;
    if (process.group == ProcGroup::browsers)
        return SessionPart::browser;
    return listens ? SessionPart::devServer : SessionPart::command;
}

void sortBySize(SessionReport& report) {
    const auto bytesOf = [](const auto& each) { return each.memory.bytes; };
    std::ranges::stable_sort(report.sessions, std::ranges::greater(), bytesOf);
    std::ranges::stable_sort(report.leftOvers, std::ranges::greater(), bytesOf);
    std::ranges::stable_sort(report.duplicates, std::ranges::greater(), bytesOf);
}

} // namespace

SessionFinder::SessionFinder(const Platform& platform)
    : m_table(platform.processes)
    , m_clock(platform.clock)
    , m_members(platform)
    , m_ports(platform.listeningPorts, platform.identity->userId()) {}

void SessionFinder::follow(const QList<ProcSample>& processes) {
    m_processes = processes;
    m_tree.emplace(m_processes);
    m_members.follow(*m_tree);
    followActivity();
}

void SessionFinder::followActivity() {
    QHash<int, double> loads;
    for (int place = 0; place < m_tree->size(); ++place) {
        const int session = m_members.sessionAt(place);
        if (session != SessionMembers::none)
            loads[session] += m_tree->at(place).cpuPercent;
    }
    const Instant now = m_clock->now();
    for (auto load = loads.cbegin(); load != loads.cend(); ++load)
        m_past[load.key()].activity.add(load.value(), now);
    m_past.removeIf([&loads](const auto& entry) { return !loads.contains(entry.key()); });
}

SessionReport SessionFinder::report(const QList<LiveServer>& servers) {
    if (!m_tree)
        return {};
    const auto before = m_members.known();
    for (auto session = before.cbegin(); session != before.cend(); ++session)
        readWord(session.key(), *session);
    m_members.readInheritance(*m_tree);
    refreshPorts();
    const QSet<qint32> serverPids = pidsOf(servers);
    const QHash<int, Members> all = members();
    SessionReport report;
    for (auto found = all.cbegin(); found != all.cend(); ++found) {
        const SessionMembers::Known known = m_members.known().value(found.key());
        const QList<SessionProcess> processes = processesOf(*found, serverPids);
        if (known.isRunning) {
            report.sessions.append(sessionOf(found.key(), known, processes));
            report.duplicates += duplicateServers(report.sessions.last(), servers);
        } else if (!known.ended || m_clock->now() - *known.ended >= leftOverAfter) {
            report.leftOvers.append({.agent = known.agent,
                                     .folder = known.folder,
                                     .ended = known.ended,
                                     .processes = processes,
                                     .memory = memoryOf(processes)});
        }
    }
    sortBySize(report);
    return report;
}

/// Reads what the agent says of its session where it says anything.
void SessionFinder::readWord(int number, const SessionMembers::Known& known) {
    if (!known.isRunning || known.agent != "claude"_L1)
        return;
    Past& past = m_past[number];
    const qint32 pid = known.host->pid;
    if (!past.startTicks) {
        const auto kernelInfo = m_table->kernelInfo(pid);
        if (!kernelInfo)
            return;
        past.startTicks = kernelInfo->startTicks;
    }
    const auto inherited = m_members.inheritance(*known.host);
    const QString folder =
        AgentTable::claudeFolder(inherited ? inherited->variables : QHash<QByteArray, QByteArray>());
    const QByteArray path = QFile::encodeName(u"%1/sessions/%2.json"_s.arg(folder, QString::number(pid)));
    past.word = past.file.refresh(path, pid, *past.startTicks, m_clock->now());
    if (past.word)
        m_members.addWord(number, past.word->id, past.word->folder);
}

void SessionFinder::refreshPorts() {
    QList<const ProcSample*> members;
    for (int place = 0; place < m_tree->size(); ++place) {
        if (m_members.sessionAt(place) != SessionMembers::none)
            members.append(&m_tree->at(place));
    }
    m_ports.refresh(members);
}

/// Returns the processes of each session: the host and what is below it, then what has lost its parent.
QHash<int, SessionFinder::Members> SessionFinder::members() const {
    QHash<int, QList<int>> children; // by the place of a parent in the same session
    QHash<int, QList<int>> tops;     // by the session
    for (int place = 0; place < m_tree->size(); ++place) {
        const int session = m_members.sessionAt(place);
        if (session == SessionMembers::none)
            continue;
        const int parent = m_tree->parent(place);
        const bool isBelow = parent != ProcessTree::none && m_members.sessionAt(parent) == session;
        (isBelow ? children[parent] : tops[session]).append(place);
    }
    QHash<int, Members> members;
    for (auto top = tops.begin(); top != tops.end(); ++top) {
        const auto host = m_members.known().value(top.key()).host;
        std::ranges::stable_partition(*top, [&](int place) { return m_tree->at(place).identity() == host; });
        Members open;
        for (const int place : QList<int>(top->rbegin(), top->rend()))
            open.append(Member{.place = place});
        while (!open.isEmpty()) {
            const Member member = open.takeLast();
            members[top.key()].append(member);
            const QList<int> below = children.value(member.place);
            for (auto child = below.rbegin(); child != below.rend(); ++child)
                open.append(Member{.place = *child, .depth = member.depth + 1});
        }
    }
    return members;
}

QList<SessionProcess> SessionFinder::processesOf(const Members& members, const QSet<qint32>& servers) {
    QList<SessionProcess> processes;
    for (const Member& member : members) {
        const ProcSample& process = m_tree->at(member.place);
        const QList<quint16> ports = m_ports.of(process.pid);
        processes.append({.process = process,
                          .part = partOf(process, m_members.isAgent(member.place),
                                         servers.contains(process.pid), !ports.isEmpty()),
                          .depth = member.depth,
                          .ports = ports});
    }
    return processes;
}

Session SessionFinder::sessionOf(int number, const SessionMembers::Known& known,
                                 QList<SessionProcess> processes) {
    Past& past = m_past[number];
    const Instant now = m_clock->now();
    const SessionFile::Content word = past.word.value_or(SessionFile::Content());
    const bool isWorking = word.state ? *word.state == SessionState::working : past.activity.isWorking(now);
    Session session{.host = *known.host,
                    .agent = known.agent,
                    .version =
                        !word.version.isEmpty() ? word.version : versionOf(past, processes.first().process),
                    .name = word.name,
                    .folder = known.folder,
                    .started = known.host->startTime,
                    .lastActive = isWorking ? now : past.activity.lastActive(),
                    .state = word.state.value_or(isWorking ? SessionState::working : SessionState::idle),
                    .waitingFor = word.waitingFor,
                    .processes = std::move(processes),
                    .resumeCommand = resumeCommand(known.agent, known.folder)};
    if (word.changed && !isWorking)
        session.lastActive = std::max(*word.changed, session.started);
    session.memory = memoryOf(session.processes);
    for (const SessionProcess& each : session.processes)
        session.cpuPercent += each.process.cpuPercent;
    past.activity.addMemory(session.memory.bytes, m_clock->uptime());
    session.trend = past.activity.trend();
    return session;
}

QString SessionFinder::versionOf(Past& past, const ProcSample& host) const {
    if (!past.version) {
        const QString ofProgram = packageVersion(host.program);
        past.version = ofProgram.isEmpty() ? packageVersion(host.executablePath) : ofProgram;
    }
    return *past.version;
}
