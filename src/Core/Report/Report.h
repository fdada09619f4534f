#pragma once

#include "Core/ActionLog/ActionLogReader.h"
#include "Core/Alerts/Alert.h"
#include "Core/Cleanup/CacheTarget.h"
#include "Core/Cleanup/ProjectLeftovers.h"
#include "Core/Grouping/GroupRollup.h"
#include "Core/Mcp/MCPInspector.h"
#include "Core/RawValue.h"
#include "Core/Sampling/SystemSample.h"
#include "Core/Sessions/Session.h"

#include <QJsonArray>
#include <QJsonObject>

#include <array>

/// What is known, as JSON for other programs: the command line, the session bus and agents get the same
/// documents. docs/cli.md describes them. Units are in the names: bytes, seconds, percent of one core for a
/// process, of all cores for the machine. What is unknown is null. Times are UTC.
namespace Report {

/// Rises when a member changes its meaning or goes. New ones may come without that.
constexpr int schema = 1;

enum class Kind { status, groups, processes, sessions, servers, alerts, caches, projects, log };

/// Where the figures come from.
struct Origin {
    Instant sampledAt;
    bool isRunning = false; ///< a program that ticks: it knows the idle times and what it has scanned
    bool hasCpu = true;     ///< there are two readings, which a load needs
};

/// Returns the members that every document has.
QJsonObject head(Kind kind, const Origin& origin);

QJsonObject status(const Origin& origin, const SystemSample& sample, qsizetype processes,
                   const QList<Alert>& alerts);
QJsonObject groups(const Origin& origin, const QList<GroupRollup>& groups);
QJsonObject processes(const Origin& origin, const QList<ProcSample>& processes);
QJsonObject alerts(const Origin& origin, const QList<Alert>& alerts);
QJsonObject sessions(const Origin& origin, const SessionReport& report);
QJsonObject servers(const Origin& origin, const MCPInspector::Report& report);
QJsonObject caches(const Origin& origin, const QList<CacheTarget>& targets);
QJsonObject projects(const Origin& origin, const QList<LeftoverProject>& projects, const QString& failure);
QJsonObject log(const Origin& origin, const QList<LoggedAction>& actions);

/// Return a part of a document.
QJsonObject process(const Origin& origin, const ProcSample& process);
QJsonObject target(const CacheTarget& target);
QJsonObject memoryReturn(const MemoryReturn& givesBack);

/// Returns the name that stands for a group: "agents", "ides", ...
QString groupName(ProcGroup group);
/// Returns a session's id: that of its host, with its start, so that a reused PID is another.
QString sessionId(const ProcessIdentity& host);
/// Returns the time as "2026-11-26T09:05:34Z".
QJsonValue time(Instant instant);

/// Returns the document as text: in one line, or indented for people. Characters that act on a terminal are
/// escaped.
QByteArray text(const QJsonObject& document, bool isIndented = false);

} // namespace Report

template <>
inline constexpr std::array rawValueTable<Report::Kind> = {
    RawValueRow{Report::Kind::status, u"status"},
    RawValueRow{Report::Kind::groups, u"groups"},
    RawValueRow{Report::Kind::processes, u"processes"},
    RawValueRow{Report::Kind::sessions, u"sessions"},
    RawValueRow{Report::Kind::servers, u"servers"},
    RawValueRow{Report::Kind::alerts, u"alerts"},
    RawValueRow{Report::Kind::caches, u"caches"},
    RawValueRow{Report::Kind::projects, u"projects"},
    RawValueRow{Report::Kind::log, u"log"},
};
