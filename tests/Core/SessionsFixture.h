#pragma once

#include "Core/ReliefFixture.h"

/// A model over scripted processes of agents.
struct SessionsTest : ReliefTest {
    SessionsTest() {
        model->actions().setSessionDelays({.forHost = std::chrono::milliseconds(2),
                                           .forOthers = std::chrono::milliseconds(2),
                                           .betweenLooks = std::chrono::milliseconds(1),
                                           .beforeMeasuring = {}});
        add(1, 0, "systemd").inheritance = {.controlGroup = "/init.scope"};
    }

    /// Adds a process of the user that started `pid` seconds after boot.
    FakeProcess& add(qint32 pid, qint32 parent, const QByteArray& name, const QByteArray& arguments = {}) {
        signalSender->start(pid, {.endsOnTerminate = true});
        return fakes.processes->add(pid,
                                    {.path = "/usr/bin/" + name,
                                     .name = name,
                                     .arguments = QByteArray(arguments).replace(' ', '\0'),
                                     .info = KernelProcessInfo{.start = Instant(std::chrono::seconds(pid)),
                                                               .uid = 1000,
                                                               .parentPid = parent,
                                                               .startTicks = quint64(pid)}});
    }
    FakeProcess& addServer(qint32 pid, qint32 parent,
                           const QByteArray& arguments = "node mcp-server-memory") {
        return add(pid, parent, "node", arguments);
    }
    void reparent(qint32 pid, qint32 parent = 1) { fakes.processes->processes[pid].info->parentPid = parent; }
    void end(qint32 pid) {
        fakes.processes->remove(pid);
        signalSender->end(pid);
    }
    /// Runs ticks two seconds apart, so many that a new parent shows.
    void pass(int ticks = 3) {
        for (int i = 0; i < ticks; ++i) {
            fakes.clock->advance(2);
            tick();
        }
    }
    /// Returns the report of the last of these ticks.
    const SessionReport& report(int ticks = 3) {
        for (int i = 0; i < ticks; ++i) {
            model->wantSessions();
            pass(1);
        }
        return model->sessionReport();
    }
    /// Returns "HOST: PID PID" for each session, in the order of the hosts.
    QStringList sessions() {
        QStringList lines;
        for (const Session& session : report().sessions)
            lines.append(QStringLiteral("%1: %2").arg(session.host.pid).arg(pidsOf(session.processes)));
        lines.sort();
        return lines;
    }
    QStringList leftOvers() {
        QStringList lines;
        for (const LeftOver& leftOver : report().leftOvers)
            lines.append(pidsOf(leftOver.processes));
        lines.sort();
        return lines;
    }
    const Session& session(qint32 host) {
        static const Session missing;
        const auto& all = model->sessionReport().sessions;
        const auto found =
            std::ranges::find_if(all, [host](const Session& each) { return each.host.pid == host; });
        return found == all.end() ? missing : *found;
    }
    static QString pidsOf(const QList<SessionProcess>& processes) {
        QList<qint32> pids = each(processes, [](const SessionProcess& one) { return one.process.pid; });
        std::ranges::sort(pids);
        QStringList texts;
        for (const qint32 pid : pids)
            texts.append(QString::number(pid));
        return texts.join(u' ');
    }
    static ProcessInheritance withId(const QByteArray& id, const QByteArray& folder = {}) {
        ProcessInheritance inheritance{.variables = {{"CLAUDE_CODE_SESSION_ID", id}}};
        if (!folder.isEmpty())
            inheritance.variables.insert("CLAUDE_PROJECT_DIR", folder);
        return inheritance;
    }
    /// Writes what the agent with that PID says about itself.
    void writeWord(qint32 pid, const QByteArray& rest) {
        home.makeFile(QStringLiteral(".claude/sessions/%1.json").arg(pid),
                      "{\"pid\": " + QByteArray::number(pid) + ", \"procStart\": \"" +
                          QByteArray::number(pid) + "\"" + rest + "}");
    }
};
