#include "Core/Report/Report.h"

#include "Core/Report/ReportParts.h"

using namespace Qt::StringLiterals;

namespace Report {

using namespace ReportParts;

namespace {

constexpr QStringView partNames[] = {u"agent", u"server", u"dev_server", u"browser", u"command"};
constexpr QStringView stateNames[] = {u"working", u"idle", u"waiting", u"paused"};

QJsonArray processesOf(const Origin& origin, const QList<SessionProcess>& processes) {
    return arrayOf(processes, [&origin](const SessionProcess& each) {
        QJsonObject part = process(origin, each.process);
        part.insert(u"part"_s, partNames[static_cast<int>(each.part)].toString());
        part.insert(u"depth"_s, each.depth);
        part.insert(u"ports"_s, arrayOf(each.ports, [](quint16 port) { return QJsonValue(port); }));
        return part;
    });
}

QJsonObject sessionOf(const Origin& origin, const Session& session) {
    QJsonObject part = memory(session.memory);
    part.insert(u"id"_s, sessionId(session.host));
    part.insert(u"pid"_s, session.host.pid);
    part.insert(u"agent"_s, session.agent);
    part.insert(u"version"_s, textOrNull(session.version));
    part.insert(u"name"_s, textOrNull(session.name));
    part.insert(u"folder"_s, textOrNull(session.folder));
    part.insert(u"started_at"_s, time(session.started));
    part.insert(u"last_active_at"_s, timeOrNull(session.lastActive));
    // One look does not tell work from rest.
    const bool isToldByOneLook = session.state == SessionState::waiting || origin.isRunning;
    part.insert(u"state"_s, isToldByOneLook
                                ? QJsonValue(stateNames[static_cast<int>(session.state)].toString())
                                : QJsonValue());
    part.insert(u"waiting_for"_s, textOrNull(session.waitingFor));
    part.insert(u"cpu_percent"_s, cpu(origin, session.cpuPercent));
    part.insert(u"process_count"_s, session.processes.size());
    part.insert(u"resume_command"_s, textOrNull(session.resumeCommand));
    part.insert(u"processes"_s, processesOf(origin, session.processes));
    return part;
}

QJsonObject leftOverOf(const Origin& origin, const LeftOver& leftOver) {
    QJsonObject part = memory(leftOver.memory);
    part.insert(u"agent"_s, leftOver.agent);
    part.insert(u"folder"_s, textOrNull(leftOver.folder));
    part.insert(u"ended_at"_s, timeOrNull(leftOver.ended));
    part.insert(u"processes"_s, processesOf(origin, leftOver.processes));
    return part;
}

QJsonObject duplicatesOf(const Origin& origin, const DuplicateServers& duplicates) {
    QJsonObject part = memory(duplicates.memory);
    part.insert(u"label"_s, duplicates.label);
    part.insert(u"session_id"_s, sessionId(duplicates.host));
    part.insert(u"processes"_s, processesOf(origin, duplicates.older));
    return part;
}

QJsonObject liveServerOf(const Origin& origin, const MCPInspector::LiveServer& server) {
    return {{u"pid"_s, server.pid},
            {u"name"_s, server.name},
            {u"label"_s, server.displayLabel},
            {u"rss_bytes"_s, number(server.rssBytes)},
            {u"idle_seconds"_s, origin.isRunning ? QJsonValue(rounded(server.idleSeconds)) : QJsonValue()},
            {u"started_at"_s, time(server.startTime)},
            {u"parent_pid"_s, server.parentPid},
            {u"parent_name"_s, server.parentName},
            {u"is_orphan"_s, server.isOrphan},
            {u"reason"_s, server.reason}};
}

QJsonObject configuredServerOf(const MCPInspector::ConfiguredServer& server) {
    return {{u"name"_s, server.name},
            {u"command"_s, server.command},
            {u"arguments"_s, QJsonArray::fromStringList(server.args)},
            {u"scope"_s, server.scope}};
}

} // namespace

QString sessionId(const ProcessIdentity& host) {
    const auto start = std::chrono::duration_cast<std::chrono::seconds>(host.startTime.time_since_epoch());
    return u"%1-%2"_s.arg(host.pid).arg(start.count(), 0, 36);
}

QJsonObject sessions(const Origin& origin, const SessionReport& report) {
    QJsonObject document = head(Kind::sessions, origin);
    document.insert(u"sessions"_s, arrayOf(report.sessions, [&origin](const Session& each) {
                        return sessionOf(origin, each);
                    }));
    document.insert(u"left_overs"_s, arrayOf(report.leftOvers, [&origin](const LeftOver& each) {
                        return leftOverOf(origin, each);
                    }));
    document.insert(u"duplicates"_s, arrayOf(report.duplicates, [&origin](const DuplicateServers& each) {
                        return duplicatesOf(origin, each);
                    }));
    return document;
}

QJsonObject servers(const Origin& origin, const MCPInspector::Report& report) {
    QJsonObject document = head(Kind::servers, origin);
    document.insert(u"servers"_s, arrayOf(report.live, [&origin](const MCPInspector::LiveServer& each) {
                        return liveServerOf(origin, each);
                    }));
    document.insert(u"orphan_count"_s, report.orphanCount());
    document.insert(u"orphan_bytes"_s, number(report.orphanBytes()));
    document.insert(u"configured"_s, arrayOf(report.configured, configuredServerOf));
    document.insert(u"configured_is_complete"_s, !report.isUnknown);
    return document;
}

} // namespace Report
