#pragma once

#include "Core/Mcp/MCPInspector.h"
#include "Core/Sessions/ProcessTree.h"
#include "Core/Sessions/Session.h"
#include "Core/Sessions/SessionActivity.h"
#include "Core/Sessions/SessionFile.h"
#include "Core/Sessions/SessionMembers.h"
#include "Core/Sessions/SessionPorts.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <optional>

class Clock;
struct Platform;

/// Makes the report of the sessions.
class SessionFinder {
public:
    explicit SessionFinder(const Platform& platform);

    /// Takes the processes of a tick, largest first, so that a later report knows what has lost its parent.
    /// Reads nothing.
    void follow(const QList<ProcSample>& processes);
    /// Returns the sessions of the tick that `follow` had, and reads what is new. `servers` are the running
    /// MCP servers.
    SessionReport report(const QList<MCPInspector::LiveServer>& servers);

private:
    /// What is remembered of a session between ticks.
    struct Past {
        SessionActivity activity;
        SessionFile file;
        std::optional<SessionFile::Content> word; ///< of the agent about itself
        std::optional<quint64> startTicks;
        std::optional<QString> version; ///< empty until it is looked up
    };
    /// A process of a session and how deep it is below its topmost one.
    struct Member {
        int place = 0;
        int depth = 0;
    };
    using Members = QList<Member>;

    void followActivity();
    void readWord(int number, const SessionMembers::Known& known);
    void refreshPorts();
    QHash<int, Members> members() const;
    QList<SessionProcess> processesOf(const Members& members, const QSet<qint32>& servers);
    Session sessionOf(int number, const SessionMembers::Known& known, QList<SessionProcess> processes);
    QString versionOf(Past& past, const ProcSample& host) const;

    std::shared_ptr<ProcessTable> m_table;
    std::shared_ptr<Clock> m_clock;
    SessionMembers m_members;
    SessionPorts m_ports;
    QList<ProcSample> m_processes;
    std::optional<ProcessTree> m_tree; ///< of `m_processes`
    QHash<int, Past> m_past;           ///< by the number of the session
};
