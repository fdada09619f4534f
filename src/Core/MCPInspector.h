#pragma once

#include "Core/Models.h"

/// Which MCP servers run right now, and which of them nobody uses any more.
namespace MCPInspector {

/// A server that a configuration file names.
struct ConfiguredServer {
    QString name;
    QString command; ///< "?" where the entry has none
    QStringList args;
    QString scope; ///< where it was found: "user", "user (alt)" or "project (cwd)"

    bool operator==(const ConfiguredServer&) const = default;
};

/// A running server process.
struct LiveServer {
    qint32 pid = 0;
    qint32 parentPid = 0;
    QString name;
    QString displayLabel;
    quint64 rssBytes = 0;
    double idleSeconds = 0;
    QString parentName;    ///< "(launchd or gone)" where the parent is not in the list
    bool isOrphan = false; ///< its parent is gone, or is no Claude host

    bool operator==(const LiveServer&) const = default;
};

struct Report {
    QList<ConfiguredServer> configured;
    QList<LiveServer> live;

    int orphanCount() const;
    quint64 orphanBytes() const;
};

/// Orphans first, then by resident memory, largest first.
QList<LiveServer> detectLive(const QList<ProcSample>& processes);

} // namespace MCPInspector
