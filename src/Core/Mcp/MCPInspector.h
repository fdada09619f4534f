#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Platform/ProcessTable.h"

#include <QList>
#include <QStringList>
#include <functional>
#include <optional>

/// Which MCP servers run right now, and which of them nobody uses any more.
namespace MCPInspector {

/// A server that a configuration file names.
struct ConfiguredServer {
    QString name;
    QString command; ///< "?" where the entry has none
    QStringList args;
    QString scope; ///< where it was found, such as "user" or "project ~/src/app"

    bool operator==(const ConfiguredServer&) const = default;
};

/// A running server. Launchers that only wait for it belong to it.
struct LiveServer {
    qint32 pid = 0;
    qint32 parentPid = 0;
    QString name;
    QString displayLabel;
    quint64 rssBytes = 0; ///< its launchers' included
    double idleSeconds = 0;
    QString parentName;    ///< its host, else what started it; "(init or gone)" where that is not in the list
    bool isOrphan = false; ///< no agent or editor above it, and nothing else that keeps it
    Instant startTime;
    QList<ProcessIdentity> launchers;
    std::optional<ProcessIdentity> host; ///< the agent or editor that uses it
    ProcessKeeper keeper;                ///< asked only where there is no host
    QString reason;                      ///< why it is judged so, in words; see ServerWatch

    ProcessIdentity identity() const { return {pid, startTime}; }
    bool operator==(const LiveServer&) const = default;
};

struct Report {
    QList<ConfiguredServer> configured;
    QList<LiveServer> live;
    bool isUnknown = false; ///< there may be more configured: a file has not been read to its end yet

    int orphanCount() const;
    quint64 orphanBytes() const;
};

/// Whether it runs a server, by its name, its executable and what it was told to run; no other argument
/// counts.
bool isMCPServerProcess(const ProcSample& process);
/// Whether it runs servers of its own: an agent, or an editor that runs agents. Such a process is never a
/// server.
bool isHost(const ProcSample& process);

/// Who keeps a process, asked only about servers without a host.
using KeeperOf = std::function<ProcessKeeper(const ProcSample& process)>;

/// Orphans first, then by resident memory, largest first.
QList<LiveServer> detectLive(const QList<ProcSample>& processes, const KeeperOf& keeperOf = {});

} // namespace MCPInspector
