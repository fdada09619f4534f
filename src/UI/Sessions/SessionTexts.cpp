#include "UI/Sessions/SessionTexts.h"

#include "Core/Formatters.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;
using Theme::Role;

namespace SessionTexts {
namespace {

constexpr double secondsPerMinute = 60;

double secondsBetween(Instant from, Instant to) {
    return std::chrono::duration<double>(to - from).count();
}

struct PartLook {
    const char16_t* symbol;
    const char* name;
    const char* heading;
    const char* count;
};

// In the order of SessionPart.
constexpr std::array partLooks = {
    PartLook{u"sparkles", QT_TRANSLATE_NOOP("SessionTexts", "agent"),
             QT_TRANSLATE_NOOP("SessionTexts", "Agent"), QT_TRANSLATE_N_NOOP("SessionTexts", "%n agent(s)")},
    PartLook{u"puzzlepiece.extension", QT_TRANSLATE_NOOP("SessionTexts", "MCP server"),
             QT_TRANSLATE_NOOP("SessionTexts", "MCP servers"),
             QT_TRANSLATE_N_NOOP("SessionTexts", "%n server(s)")},
    PartLook{u"server.rack", QT_TRANSLATE_NOOP("SessionTexts", "dev server"),
             QT_TRANSLATE_NOOP("SessionTexts", "Dev servers"),
             QT_TRANSLATE_N_NOOP("SessionTexts", "%n dev server(s)")},
    PartLook{u"globe", QT_TRANSLATE_NOOP("SessionTexts", "browser"),
             QT_TRANSLATE_NOOP("SessionTexts", "Browsers"),
             QT_TRANSLATE_N_NOOP("SessionTexts", "%n browser(s)")},
    PartLook{u"terminal", QT_TRANSLATE_NOOP("SessionTexts", "command"),
             QT_TRANSLATE_NOOP("SessionTexts", "Commands"),
             QT_TRANSLATE_N_NOOP("SessionTexts", "%n command(s)")},
};

const PartLook& lookOf(SessionPart part) {
    return partLooks[static_cast<std::size_t>(part)];
}

/// Returns whether the nearest process above in the tree is of the same part.
bool isHelper(const QList<SessionProcess>& processes, qsizetype index) {
    const SessionProcess& process = processes[index];
    for (qsizetype i = index - 1; i >= 0; --i) {
        if (processes[i].depth < process.depth)
            return processes[i].part == process.part;
    }
    return false;
}

QString line(const SessionProcess& member, Instant now) {
    QStringList words{QString::number(member.process.pid), Formatters::visible(member.process.name),
                      u'(' + nameOf(member.part) + u')'};
    if (!member.ports.isEmpty())
        words.append(ports(member));
    words << memoryOf(member).text() << age(member.process, now);
    return QString(2 * member.depth, u' ') + words.join(u' ');
}

} // namespace

StateLook lookOf(SessionState state) {
    switch (state) {
    case SessionState::working:
        return {u"circle.fill"_s, Role::green, QCoreApplication::translate("SessionTexts", "Working")};
    case SessionState::waiting:
        return {u"bell"_s, Role::orange, QCoreApplication::translate("SessionTexts", "Waiting for you")};
    case SessionState::paused:
        return {u"pause.fill"_s, Role::indigo, QCoreApplication::translate("SessionTexts", "Paused")};
    case SessionState::idle:
        break;
    }
    return {u"circle"_s, Role::secondaryText, QCoreApplication::translate("SessionTexts", "Idle")};
}

QString symbolOf(SessionPart part) {
    return QString::fromUtf16(lookOf(part).symbol);
}

QString nameOf(SessionPart part) {
    return QCoreApplication::translate("SessionTexts", lookOf(part).name);
}

QString headingOf(SessionPart part) {
    return QCoreApplication::translate("SessionTexts", lookOf(part).heading);
}

QString count(qsizetype sessions) {
    const int n = static_cast<int>(sessions);
    return QCoreApplication::translate("SessionTexts", "%n session(s)", nullptr, n);
}

QString summary(const SessionReport& report) {
    if (report.sessions.isEmpty())
        return {};
    QStringList parts{count(report.sessions.size()), report.memory().text()};
    if (const int idle = report.idleCount(); idle > 0)
        parts.append(QCoreApplication::translate("SessionTexts", "%n idle", nullptr, idle));
    return Formatters::list(parts);
}

QString processCount(qsizetype processes) {
    const int n = static_cast<int>(processes);
    return QCoreApplication::translate("SessionTexts", "%n process(es)", nullptr, n);
}

QString partCounts(const QList<SessionProcess>& processes) {
    std::array<int, partLooks.size()> counts{};
    for (qsizetype i = 0; i < processes.size(); ++i) {
        if (!isHelper(processes, i))
            ++counts[static_cast<std::size_t>(processes[i].part)];
    }
    QStringList texts;
    for (std::size_t part = 0; part < counts.size(); ++part) {
        if (counts[part] > 0)
            texts.append(
                QCoreApplication::translate("SessionTexts", partLooks[part].count, nullptr, counts[part]));
    }
    return Formatters::list(texts);
}

QString agent(const Session& session) {
    return Formatters::visible(session.version.isEmpty() ? session.agent
                                                         : session.agent + u' ' + session.version);
}

QString heading(const Session& session) {
    return Formatters::visible(session.folder.isEmpty() ? session.agent : session.project());
}

QString lastActive(const Session& session, Instant now) {
    if (!session.lastActive)
        return u"—"_s;
    // Seconds would change with every tick.
    const double seconds = secondsBetween(*session.lastActive, now);
    return Formatters::ago(seconds < secondsPerMinute ? 0 : seconds);
}

QString age(const ProcSample& process, Instant now) {
    return Formatters::duration(secondsBetween(process.startTime, now));
}

QString ports(const SessionProcess& process) {
    QStringList texts;
    for (const quint16 port : process.ports)
        texts.append(u':' + QString::number(port));
    return texts.join(u' ');
}

SummedMemory memoryOf(const SessionProcess& process) {
    return SummedMemory::of({process.process});
}

QString memoryParts(const SummedMemory& memory) {
    return memory.swapBytes > 0 ? memory.parts()
                                : QCoreApplication::translate("SessionTexts", "resident %1")
                                      .arg(Formatters::bytes(memory.residentBytes));
}

QString details(const Session& session, Instant now) {
    QStringList lines{agent(session) + u' ' + Formatters::visible(session.folder)};
    if (!session.name.isEmpty())
        lines.append(Formatters::visible(session.name));
    lines.append(
        Formatters::list({lookOf(session.state).text, lastActive(session, now),
                          processCount(session.processes.size()), Formatters::percent(session.cpuPercent),
                          u"%1 (%2)"_s.arg(session.memory.text(), memoryParts(session.memory))}));
    if (!session.resumeCommand.isEmpty())
        lines.append(Formatters::visible(session.resumeCommand));
    lines.append(QString());
    for (const SessionProcess& member : session.processes)
        lines.append(line(member, now));
    return lines.join(u'\n') + u'\n';
}

} // namespace SessionTexts
