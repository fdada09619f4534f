#include "UI/Sessions/Remains.h"

#include "Core/Formatters.h"
#include "Core/Sampling/ProgramPath.h"
#include "Model/ProcessActions.h"
#include "UI/Sessions/SessionTexts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QDateTime local(Instant instant) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(instant.time_since_epoch());
    return QDateTime::fromSecsSinceEpoch(seconds.count());
}

/// Returns the time of a day, with the day unless it is that of `now`.
QString timeText(Instant instant, Instant now) {
    const QDateTime time = local(instant);
    return time.date() == local(now).date() ? QLocale().toString(time.time(), QLocale::ShortFormat)
                                            : QLocale().toString(time, QLocale::ShortFormat);
}

QString host(const QString& agent, const QString& folder) {
    const QString name = Formatters::visible(agent);
    return folder.isEmpty() ? name
                            : QCoreApplication::translate("Session", "%1 in %2")
                                  .arg(name, Formatters::visible(ProgramPath::withTilde(folder)));
}

/// Returns the number of servers: a launcher counts together with what it launched.
int serverCount(const DuplicateServers& servers) {
    QSet<qint32> pids;
    for (const SessionProcess& member : servers.older)
        pids.insert(member.process.pid);
    return static_cast<int>(std::ranges::count_if(servers.older, [&pids](const SessionProcess& member) {
        return !pids.contains(member.process.parentPid);
    }));
}

QString titleOf(const LeftOver& leftOver) {
    return QCoreApplication::translate("Remains", "Left by %1").arg(host(leftOver.agent, leftOver.folder));
}

QString titleOf(const DuplicateServers& servers) {
    const int n = serverCount(servers) + 1; // with the newest
    return QCoreApplication::translate("Remains", "%1 runs %n time(s) under %2", nullptr, n)
        .arg(Formatters::visible(servers.label), host(servers.agent, servers.folder));
}

QString detailsOf(const LeftOver& leftOver, Instant now) {
    const QString parts = SessionTexts::partCounts(leftOver.processes);
    return leftOver.ended ? QCoreApplication::translate("Remains", "ended %1: %2")
                                .arg(timeText(*leftOver.ended, now), parts)
                          : parts;
}

QString detailsOf(const DuplicateServers& servers, Instant) {
    return QCoreApplication::translate("Remains", "%n older one(s)", nullptr, serverCount(servers));
}

} // namespace

QString Remains::key() const {
    if (processes().isEmpty())
        return {};
    if (const auto* servers = std::get_if<DuplicateServers>(&what))
        return keyOf(servers->host) + u' ' + processes().last().process.arguments;
    return keyOf(processes().first().process.identity());
}

QString Remains::title() const {
    return std::visit([](const auto& each) { return titleOf(each); }, what);
}

QString Remains::details(Instant now) const {
    return std::visit([now](const auto& each) { return detailsOf(each, now); }, what);
}

QString Remains::symbol() const {
    return std::holds_alternative<LeftOver>(what) ? u"tray"_s : u"rectangle.on.rectangle"_s;
}

QString Remains::endText() const {
    return std::holds_alternative<LeftOver>(what) ? QCoreApplication::translate("Remains", "End left-overs")
                                                  : QCoreApplication::translate("Remains", "End duplicates");
}

const QList<SessionProcess>& Remains::processes() const {
    const auto* servers = std::get_if<DuplicateServers>(&what);
    return servers ? servers->older : std::get<LeftOver>(what).processes;
}

const SummedMemory& Remains::memory() const {
    return std::visit([](const auto& each) -> const SummedMemory& { return each.memory; }, what);
}

QString Remains::agent() const {
    return std::visit([](const auto& each) { return each.agent; }, what);
}

QString Remains::folder() const {
    return std::visit([](const auto& each) { return ProgramPath::withTilde(each.folder); }, what);
}

SessionEnding Remains::ending(const ProcessActions& actions) const {
    if (const auto* servers = std::get_if<DuplicateServers>(&what))
        return actions.endingOf(QList<DuplicateServers>{*servers});
    return actions.endingOf(QList<LeftOver>{std::get<LeftOver>(what)});
}

QString keyOf(const ProcessIdentity& process) {
    return u"%1 %2"_s.arg(process.pid).arg(process.startTime.time_since_epoch().count());
}
