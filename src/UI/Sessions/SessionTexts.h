#pragma once

#include "Core/Sessions/Session.h"
#include "UI/Style/Theme.h"

#include <QString>

/// The texts and symbols for sessions, shared by the page, the panel and the overview.
namespace SessionTexts {

struct StateLook {
    QString symbol;
    Theme::Role role;
    QString text; ///< "Waiting for you"
};

StateLook lookOf(SessionState state);
QString symbolOf(SessionPart part);
/// Returns "MCP server", as the kind of one process.
QString nameOf(SessionPart part);
/// Returns "MCP servers", as a heading.
QString headingOf(SessionPart part);

/// Returns "5 sessions".
QString count(qsizetype sessions);
/// Returns "5 sessions, 6.2 GB, 2 idle", empty without sessions.
QString summary(const SessionReport& report);
/// Returns "14 processes".
QString processCount(qsizetype processes);
/// Returns "3 servers, 1 browser". A part that starts helpers of its own kind counts once.
QString partCounts(const QList<SessionProcess>& processes);
/// Returns "claude 2.1.4".
QString agent(const Session& session);
/// Returns the project's folder, or the agent where that is unknown.
QString heading(const Session& session);
/// Returns "12 minutes ago", or a dash when unknown.
QString lastActive(const Session& session, Instant now);
/// Returns how long the process has been running, "3.2h".
QString age(const ProcSample& process, Instant now);
/// Returns ":3000 :5173".
QString ports(const SessionProcess& process);
SummedMemory memoryOf(const SessionProcess& process);
/// Returns the resident size, and what is in swap unless that is nothing.
QString memoryParts(const SummedMemory& memory);
/// Returns the session and its processes as plain text, one line each.
QString details(const Session& session, Instant now);

} // namespace SessionTexts
