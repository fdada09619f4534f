#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Platform/ProcessTable.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

/// Finds the MCP servers that run, and those that nobody uses any more.
namespace MCPInspector {

/// A server that a configuration file names.
struct ConfiguredServer {
    QString name;
    QString command; ///< "?" where the file has none
    QStringList args;
    QString scope; ///< where it was found, such as "user" or "project ~/src/app"

    bool operator==(const ConfiguredServer&) const = default;
};

/// A running server, with the launchers that only wait for it.
struct LiveServer {
    qint32 pid = 0;
    qint32 parentPid = 0;
    QString name;
    QString displayLabel;
    quint64 rssBytes = 0; ///< with its launchers
    double idleSeconds = 0;
    QString parentName;    ///< its host, else its parent; "(init or gone)" for an unlisted parent
    bool isOrphan = false; ///< without a host and without a keeper
    Instant startTime;
    QList<ProcessIdentity> launchers;
    std::optional<ProcessIdentity> host; ///< the agent or editor that uses it
    ProcessKeeper keeper;                ///< set only without a host
    QString reason;                      ///< why it is in use or an orphan, in words; see ServerWatch

    ProcessIdentity identity() const { return {pid, startTime}; }
    bool operator==(const LiveServer&) const = default;
};

struct Report {
    QList<ConfiguredServer> configured;
    QList<LiveServer> live;
    bool isUnknown = false; ///< there may be more configured servers: a file is not read to its end yet

    int orphanCount() const;
    quint64 orphanBytes() const;
};

/// Returns whether a process is a server, by its name, its executable and its program.
bool isMCPServerProcess(const ProcSample& process);
/// Returns whether a process runs servers of its own: an agent, or an editor that runs agents.
bool isHost(const ProcSample& process);

/// Returns the keeper of a process; called only for servers without a host.
using KeeperOf = std::function<ProcessKeeper(const ProcSample& process)>;

/// Returns the servers: orphans first, then by resident memory, largest first.
QList<LiveServer> detectLive(const QList<ProcSample>& processes, const KeeperOf& keeperOf = {});

} // namespace MCPInspector
