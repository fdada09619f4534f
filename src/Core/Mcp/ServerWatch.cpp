#include "Core/Mcp/ServerWatch.h"

#include "Core/Formatters.h"
#include "Core/Grouping/KnownPrograms.h"
#include "Core/Sampling/LaunchedProgram.h"
#include "Core/Sampling/ProgramPath.h"
#include "Platform/Clock.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::LiveServer;

constexpr double minQuietSeconds = 60; // below it a server has just answered

/// Returns the reason why a server is an orphan, with how long it has been idle.
QString withIdleTime(const QString& reason, double seconds) {
    if (seconds < minQuietSeconds)
        return reason;
    const bool isHours = seconds >= 3600;
    return (isHours ? QCoreApplication::translate("ServerWatch", "%1, no CPU for %2 h")
                    : QCoreApplication::translate("ServerWatch", "%1, no CPU for %2 min"))
        .arg(reason, QString::number(std::lround(seconds / (isHours ? 3600 : 60))));
}

/// Returns the name of the agent or editor itself where an interpreter runs it.
QString hostName(const ProcSample& host) {
    const auto* known = KnownPrograms::of(host);
    return known && LaunchedProgram::isInterpreter(host.name) ? known->name.toString() : host.name;
}

QString nameAndPid(const QString& name, qint32 pid) {
    return u"%1 (%2)"_s.arg(Formatters::visible(name), QString::number(pid));
}

} // namespace

ServerWatch::ServerWatch(std::shared_ptr<ProcessTable> table, std::shared_ptr<Clock> clock)
    : m_table(std::move(table))
    , m_clock(std::move(clock)) {}

QList<LiveServer> ServerWatch::detectLive(const QList<ProcSample>& processes) {
    for (Past& past : m_past)
        past.wasSeen = false;
    QList<LiveServer> live =
        MCPInspector::detectLive(processes, [this](const ProcSample& process) { return keeperOf(process); });
    QHash<qint32, const ProcSample*> byPid;
    if (!live.isEmpty()) {
        for (const ProcSample& process : processes)
            byPid.insert(process.pid, &process);
    }
    for (LiveServer& server : live) {
        remember(server, byPid);
        server.reason = reasonFor(server, m_past[server.pid]);
    }
    m_past.removeIf([](const auto& entry) { return !entry->wasSeen; });
    return live;
}

QList<LiveServer> ServerWatch::lookAt(const QList<ProcSample>& processes) const {
    return MCPInspector::detectLive(
        processes, [this](const ProcSample& process) { return m_table->keeper(process.pid); });
}

/// Returns the past of a server, a new one where the PID was reused.
ServerWatch::Past& ServerWatch::pastOf(const ProcessIdentity& server) {
    Past& past = m_past[server.pid];
    if (past.startTime != server.startTime)
        past = {.startTime = server.startTime};
    return past;
}

/// Asks the system once for each server.
ProcessKeeper ServerWatch::keeperOf(const ProcSample& process) {
    Past& past = pastOf(process.identity());
    if (!past.keeper)
        past.keeper = m_table->keeper(process.pid);
    return *past.keeper;
}

void ServerWatch::remember(const LiveServer& server, const QHash<qint32, const ProcSample*>& byPid) {
    Past& past = pastOf(server.identity());
    past.wasSeen = true;
    if (server.host) {
        if (past.host != *server.host)
            past.hostFolder =
                ProgramPath::withTilde(QString::fromUtf8(m_table->workingDirectory(server.host->pid)));
        past.host = *server.host;
        past.hostName = hostName(*byPid.value(server.host->pid));
        past.hostEnded.reset();
        return;
    }
    const ProcSample* host = byPid.value(past.host.pid);
    if (past.host.pid != 0 && !past.hostEnded && !(host && host->identity() == past.host))
        past.hostEnded = m_clock->now();
}

QString ServerWatch::reasonFor(const LiveServer& server, const Past& past) const {
    const QString host = nameAndPid(past.hostName, past.host.pid);
    if (server.host)
        return past.hostFolder.isEmpty()
                   ? QCoreApplication::translate("ServerWatch", "in use by %1").arg(host)
                   : QCoreApplication::translate("ServerWatch", "in use by %1 in %2")
                         .arg(host, Formatters::visible(past.hostFolder));
    if (!server.isOrphan) {
        const QString keeper = Formatters::visible(QString::fromUtf8(server.keeper.name));
        return server.keeper.kind == ProcessKeeper::Kind::container
                   ? QCoreApplication::translate("ServerWatch", "runs in the container %1").arg(keeper)
                   : QCoreApplication::translate("ServerWatch", "run by the service manager as %1")
                         .arg(keeper);
    }
    QString reason = QCoreApplication::translate("ServerWatch", "orphan: no agent or editor above it");
    if (past.hostEnded)
        reason = QCoreApplication::translate("ServerWatch", "orphan: its host %1 ended at %2")
                     .arg(host, Formatters::timeOfDay(secondsOf(*past.hostEnded), QLocale::ShortFormat));
    else if (past.host.pid != 0)
        reason = QCoreApplication::translate("ServerWatch", "orphan: no longer below its host %1").arg(host);
    return withIdleTime(reason, server.idleSeconds);
}
