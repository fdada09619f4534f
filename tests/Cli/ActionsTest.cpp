#include "Cli/CliFixture.h"
#include "Core/ActionLog/ActionLogReader.h"
#include "support/Listing.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int refused = 3;

struct ActionsTest : CliTest {
    ActionsTest() {
        addSized(70, "claude", 800 * MiB).info->startTicks = 70;
        addSized(71, "tavrinctl", 900 * MiB);
        addSized(72, "firefox", 700 * MiB).info->uid = 7; // somebody else's
        fakes.identity->pid = 71;
        tellIdle(70, 3600);
        tellIdle(72, 3600);
    }
    /// Lets the running program tell how long a process has been idle.
    void tellIdle(qint32 pid, int seconds) {
        m_idle.append(
            QStringLiteral("{\"pid\":%1,\"started_at\":\"1970-01-01T00:%2:%3Z\",\"idle_seconds\":%4}")
                .arg(pid)
                .arg(pid / 60, 2, 10, QChar(u'0'))
                .arg(pid % 60, 2, 10, QChar(u'0'))
                .arg(seconds));
        running.documents[u"processes"_s] =
            "{\"schema\":1,\"kind\":\"processes\",\"processes\":[" + m_idle.join(u',').toUtf8() + "]}";
    }
    QStringList logLines() const {
        return each(ActionLogReader::read(), [](const LoggedAction& action) { return action.detail; });
    }

private:
    QStringList m_idle;
};

} // namespace

TEST_F(ActionsTest, NothingEndsUnlessSomebodyAgrees) {
    add(80, 70, "node", "node server.js");
    const QStringList commands = {u"free --min-mb 100"_s, u"end-session 70"_s, u"quit 70"_s,
                                  u"quit claude"_s};
    for (const QString& command : commands) {
        EXPECT_EQ(run(command + u" --dry-run"_s), 0) << qPrintable(command) << terminal.errors.constData();
        EXPECT_TRUE(terminal.output.contains("claude")) << qPrintable(command);
        EXPECT_EQ(run(command), refused) << qPrintable(command);
        EXPECT_TRUE(terminal.output.contains("claude")) << "what would go is listed";
        EXPECT_TRUE(terminal.errors.contains("--yes"));
        for (const QByteArray& answer : {QByteArray("n"), QByteArray(), QByteArray("yesterday")}) {
            terminal.answers = {answer};
            EXPECT_EQ(run(command), refused) << answer.constData();
            terminal.answers = {answer};
            EXPECT_EQ(run(command + u" --json"_s), refused);
            EXPECT_TRUE(terminal.errors.contains("claude")) << "what would go is where the question is";
        }
        EXPECT_EQ(run(command + u" --json"_s), refused);
        EXPECT_FALSE(document().value(u"done"_s).toBool(true));
    }
    EXPECT_TRUE(signalSender->sent().isEmpty());
    EXPECT_TRUE(logLines().isEmpty());
}

TEST_F(ActionsTest, FreeEndsWhatTheButtonWouldEnd) {
    terminal.answers = {"y"};
    EXPECT_EQ(run(u"free"_s), 0) << terminal.errors.constData();
    EXPECT_EQ(signalled(), QList<qint32>{70});
    EXPECT_EQ(logLines().size(), 1);
    EXPECT_TRUE(logLines().constFirst().startsWith("[free RAM] 70:quit"_L1))
        << qPrintable(logLines().constFirst());
    signalSender->start(70, {.endsOnTerminate = true});
    EXPECT_EQ(run(u"free --min-idle 90 --yes"_s), 0) << "nothing is idle for so long";
    EXPECT_EQ(run(u"free --min-mb 2000 --yes --json"_s), 0);
    EXPECT_EQ(list(u"processes"_s).size(), 0);
    EXPECT_EQ(signalled(), QList<qint32>{70});
    EXPECT_EQ(run(u"free --min-idle soon"_s), 2);
    EXPECT_EQ(run(u"free --min-mb -3"_s), 2);
}

TEST_F(ActionsTest, WhatComesBackBeforeTheAnswerIsNotCounted) {
    for (const QString& command : {u"free --json"_s, u"end-session 70-1y --json"_s}) {
        signalSender->start(70);
        terminal.answers = {"y"};
        terminal.whenAsked = [this] { fakes.host->memory.activeBytes /= 2; };
        EXPECT_EQ(run(command), 0) << qPrintable(command) << terminal.errors.constData();
        EXPECT_EQ(document().value(u"freed_bytes"_s).toInteger(-1), 0) << qPrintable(command);
    }
}

TEST_F(ActionsTest, WhatIsIdleIsNotGuessed) {
    running.documents.clear();
    for (const QString& command : {u"free --yes"_s, u"preset claude"_s}) {
        if (command.startsWith(u"preset"))
            settings.preferences.storeQuickKillPresets({{.id = QUuid::createUuid(),
                                                         .name = u"claude"_s,
                                                         .pattern = u"claude"_s,
                                                         .minIdleMinutes = 5}});
        EXPECT_EQ(run(command), 1) << qPrintable(command);
        EXPECT_TRUE(terminal.errors.contains("idle"));
    }
    EXPECT_TRUE(signalSender->sent().isEmpty());
    EXPECT_EQ(run(u"free --min-idle 0 --yes"_s), 0);
    EXPECT_EQ(signalled(), QList<qint32>{70});
    // A process that has the PID of one that was idle.
    signalSender->start(70);
    fakes.processes->processes[70].info->start = Instant(std::chrono::seconds(5000));
    tellIdle(70, 9999);
    EXPECT_EQ(run(u"free --yes"_s), 0);
    EXPECT_EQ(signalled(), QList<qint32>{70});
}

TEST_F(ActionsTest, ASessionEndsWholeByItsId) {
    add(80, 70, "node", "node server.js");
    EXPECT_EQ(run(u"end-session 70-1y --json"_s), refused);
    EXPECT_EQ(run(u"end-session 70-1z --yes"_s), 1) << "the PID of another";
    EXPECT_EQ(run(u"end-session nonsense --yes"_s), 1);
    EXPECT_TRUE(signalSender->sent().isEmpty());
    EXPECT_EQ(run(u"end-session 70-1y --yes --json"_s), 0);
    EXPECT_EQ(signalled(), (QList<qint32>{70, 80}));
    EXPECT_EQ(list(u"results"_s).size(), 2);
    EXPECT_TRUE(logLines().constFirst().startsWith("[session] claude"_L1));
}

TEST_F(ActionsTest, QuitReachesTheUsersOwnProcessesOnly) {
    for (const QString& name : {u"72"_s, u"71"_s, u"99999"_s, u"nothing"_s, u"firefox"_s}) {
        EXPECT_EQ(run(u"quit --yes "_s + name), 1) << qPrintable(name);
        EXPECT_TRUE(terminal.errors.contains(name.toUtf8()));
    }
    EXPECT_TRUE(signalSender->sent().isEmpty());
    EXPECT_EQ(run(u"quit 70 --yes"_s), 0);
    EXPECT_EQ(signalled(), QList<qint32>{70});
    EXPECT_EQ(logLines(), QStringList(u"pid=70"_s));
    addSized(73, "helper", MiB);
    for (const qint32 pid : {70, 73})
        fakes.applications->byProcess[pid] = {.name = u"Claude Desktop"_s};
    signalSender->start(70);
    EXPECT_EQ(run(u"quit helper --json"_s), refused);
    EXPECT_EQ(list(u"processes"_s).size(), 2) << "all of the application would quit";
    EXPECT_EQ(run({u"quit"_s, u"Claude Desktop"_s, u"--yes"_s}), 0);
    EXPECT_EQ(fakes.relief->requests, QStringList(u"quit Claude Desktop"_s));
    fakes.relief->answer = [] { return Outcome::failure(u"no"_s); };
    EXPECT_EQ(run({u"quit"_s, u"Claude Desktop"_s, u"--yes"_s}), 1);
}

TEST_F(ActionsTest, APresetRunsByItsName) {
    settings.preferences.storeQuickKillPresets({{.id = QUuid::createUuid(),
                                                 .name = u"Agents"_s,
                                                 .pattern = u"claude"_s,
                                                 .minIdleMinutes = 30,
                                                 .force = true}});
    EXPECT_EQ(run(u"preset unknown --yes"_s), 1);
    EXPECT_TRUE(terminal.errors.contains("'Agents'"));
    EXPECT_EQ(run(u"preset agents"_s), refused);
    EXPECT_TRUE(signalSender->sent().isEmpty());
    EXPECT_EQ(run(u"preset agents --yes --json"_s), 0);
    EXPECT_EQ(document().value(u"killed"_s).toInt(), 1);
    EXPECT_EQ(signalSender->sent().constFirst().signal, Signal::kill);
    EXPECT_EQ(logLines(), QStringList(u"[quickKill] Agents — matched=1 killed=1"_s));
}

TEST_F(ActionsTest, CleaningRemovesWhatIsNamedAndWasAgreedTo) {
    const QString npm = home.makeFolder(u".npm"_s);
    for (const CacheTarget& target : CacheTarget::defaults()) {
        for (const QString& path : target.paths)
            fakes.places->elsewhere[path] = {path == u"~/.npm"_s ? npm : home.path(u"nowhere"_s)};
    }
    const QByteArray listing = listingOf({{"all", 2 * MiB}});
    tools->answer = [&, isCleaned = false](const ToolRequest& request) mutable {
        const bool isFull = request.arguments.last() == npm && !isCleaned;
        if (request.launchPath == u"/usr/bin/du")
            return ScriptedTools::exited(0, isFull ? "2048 x" : "0 x");
        isCleaned |= request.arguments.first() == u"remove";
        return ScriptedTools::exited(0, isFull ? listing : listingOf({}));
    };
    QString target;
    for (const CacheTarget& one : CacheTarget::defaults()) {
        if (one.paths.contains(u"~/.npm"_s))
            target = one.name;
    }
    const auto removals = [&] {
        return std::ranges::count_if(tools->requests, [](const ToolRequest& request) {
            return request.arguments.value(0) == u"remove";
        });
    };
    EXPECT_EQ(run({u"clean"_s, target, u"--dry-run"_s}), 0);
    EXPECT_TRUE(terminal.output.contains(npm.toUtf8())) << terminal.output.constData();
    EXPECT_EQ(run({u"clean"_s, target}), refused);
    EXPECT_EQ(run({u"clean"_s, target, u"no such target"_s, u"--yes"_s}), 1) << "one wrong name stops all";
    EXPECT_EQ(removals(), 0);
    EXPECT_EQ(run({u"clean"_s, target.toUpper(), u"--yes"_s, u"--json"_s}), 0) << terminal.errors.constData();
    EXPECT_EQ(removals(), 1);
    EXPECT_EQ(document().value(u"freed_bytes"_s).toInteger(), qint64(2 * MiB));
    EXPECT_EQ(logLines(), QStringList(target));
    tools->answer = [&](const ToolRequest& request) {
        const bool removes = request.arguments.first() == u"remove";
        return ScriptedTools::exited(removes ? 1 : 0, removes ? QByteArray() : listing);
    };
    EXPECT_EQ(run({u"clean"_s, target, u"--yes"_s}), 1);
}
