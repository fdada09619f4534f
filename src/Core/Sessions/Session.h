#pragma once

#include "Core/Memory/MemoryReturn.h"
#include "Core/Memory/SummedMemory.h"
#include "Core/Sampling/ProcSample.h"

#include <QList>

#include <optional>

/// What a process is to the session that it belongs to.
enum class SessionPart { agent, server, devServer, browser, command };

/// What a session does: it works; it does nothing; it waits for the user, by its own word; the user paused
/// it.
enum class SessionState { working, idle, waiting, paused };

/// A process of a session.
struct SessionProcess {
    ProcSample process;
    SessionPart part = SessionPart::command;
    int depth = 0;        ///< 0 for the host and for what has lost its parent
    QList<quint16> ports; ///< that it listens on, ascending

    bool operator==(const SessionProcess&) const = default;
};

/// One running coding agent with all that it started.
struct Session {
    ProcessIdentity host;
    QString agent;   ///< "claude"
    QString version; ///< empty when unknown
    QString name;    ///< that the agent gave it, else empty
    QString folder;  ///< the project's full path, empty when unknown
    Instant started;
    std::optional<Instant> lastActive; ///< empty before it was seen active
    SessionState state = SessionState::idle;
    QString waitingFor;              ///< by its own word, else empty
    QList<SessionProcess> processes; ///< the host, then what it started: children below their parent
    SummedMemory memory;
    double cpuPercent = 0; ///< 100 % is one core
    QList<double>
        trend; ///< its memory in bytes every 10 s of the last 10 min that it was wanted, oldest first
    QString
        resumeCommand; ///< a shell's line that takes the conversation up again, empty for an unknown agent

    /// Returns the folder as a shell shows it, "~/src/app".
    QString project() const;
    QList<qint32> pids() const;
    /// Returns "claude in ~/src/app".
    QString title() const;
    /// Returns the same in English, as the log has it in every language.
    QString titleForLog() const;
    bool operator==(const Session&) const = default;
};

/// What a session that ended left running.
struct LeftOver {
    QString agent;
    QString folder;               ///< empty when unknown
    std::optional<Instant> ended; ///< empty when it ended before this program looked
    QList<SessionProcess> processes;
    SummedMemory memory;

    bool operator==(const LeftOver&) const = default;
};

/// Servers with the same arguments under one host: all but the newest.
struct DuplicateServers {
    QString label;        ///< of the server
    ProcessIdentity host; ///< of the session
    QString agent;
    QString folder;
    QList<SessionProcess> older; ///< with their launchers
    SummedMemory memory;

    bool operator==(const DuplicateServers&) const = default;
};

/// The sessions of the user.
struct SessionReport {
    QList<Session> sessions; ///< largest memory first
    QList<LeftOver> leftOvers;
    QList<DuplicateServers> duplicates;

    SummedMemory memory() const; ///< of the sessions
    int idleCount() const;
    bool operator==(const SessionReport&) const = default;
};
