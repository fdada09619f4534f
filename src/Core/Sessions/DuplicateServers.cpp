#include "Core/Sessions/DuplicateServers.h"

#include <QHash>
#include <QMap>

#include <algorithm>
#include <tuple>

using MCPInspector::LiveServer;

namespace {

using Processes = QHash<qint32, const SessionProcess*>;

/// What servers of one kind have in common.
using Kind = std::tuple<qint32, QString, QString>;

void append(const LiveServer& server, const Processes& processes, DuplicateServers& to) {
    QList<ProcessIdentity> identities = server.launchers;
    identities.append(server.identity());
    for (const ProcessIdentity& identity : identities) {
        const SessionProcess* found = processes.value(identity.pid);
        if (!found || found->process.identity() != identity)
            continue;
        to.older.append(*found);
        to.memory.add(found->process);
    }
}

} // namespace

QList<DuplicateServers> duplicateServers(const Session& session, const QList<LiveServer>& servers) {
    Processes processes;
    for (const SessionProcess& each : session.processes)
        processes.insert(each.process.pid, &each);
    QMap<Kind, QList<const LiveServer*>> kinds;
    for (const LiveServer& server : servers) {
        const SessionProcess* found = processes.value(server.pid);
        if (found && server.host && found->process.identity() == server.identity())
            kinds[{server.host->pid, found->process.program, found->process.arguments}].append(&server);
    }
    QList<DuplicateServers> duplicates;
    for (QList<const LiveServer*>& same : kinds) {
        if (same.size() < 2)
            continue;
        std::ranges::stable_sort(same, std::ranges::greater(), &LiveServer::startTime);
        DuplicateServers duplicate{.label = same.first()->displayLabel,
                                   .host = session.host,
                                   .agent = session.agent,
                                   .folder = session.folder};
        for (const LiveServer* older : same.sliced(1))
            append(*older, processes, duplicate);
        duplicates.append(duplicate);
    }
    return duplicates;
}
