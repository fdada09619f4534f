#pragma once

#include "Core/Mcp/MCPInspector.h"

#include <QHash>

#include <memory>

class Clock;
class ProcessTable;

/// Follows the running MCP servers from pass to pass: it remembers the host of each, and says in words why a
/// server is in use or an orphan.
class ServerWatch {
public:
    ServerWatch(std::shared_ptr<ProcessTable> table, std::shared_ptr<Clock> clock);

    /// Returns the servers among the processes of one pass, see MCPInspector.
    QList<MCPInspector::LiveServer> detectLive(const QList<ProcSample>& processes);
    /// Returns the servers between two passes, and remembers nothing.
    QList<MCPInspector::LiveServer> lookAt(const QList<ProcSample>& processes) const;

private:
    /// A server and its last host.
    struct Past {
        Instant startTime;
        std::optional<ProcessKeeper> keeper; ///< empty until it is asked
        ProcessIdentity host;                ///< PID 0 before it had one
        QString hostName;
        QString hostFolder;
        std::optional<Instant> hostEnded;
        bool wasSeen = false; ///< in the current pass
    };

    Past& pastOf(const ProcessIdentity& server);
    ProcessKeeper keeperOf(const ProcSample& process);
    void remember(const MCPInspector::LiveServer& server, const QHash<qint32, const ProcSample*>& byPid);
    QString reasonFor(const MCPInspector::LiveServer& server, const Past& past) const;

    std::shared_ptr<ProcessTable> m_table;
    std::shared_ptr<Clock> m_clock;
    QHash<qint32, Past> m_past; ///< by the server's PID
};
