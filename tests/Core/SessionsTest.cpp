#include "Core/SessionsFixture.h"

#include "Core/Inspection/ProcessInspection.h"
#include "Core/Sessions/PackageVersion.h"
#include "Core/Sessions/ResumeCommand.h"
#include "Core/Sessions/SessionActivity.h"
#include "Core/Sessions/SessionFile.h"

#include <QRegularExpression>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST_F(SessionsTest, EverythingBelowTheTopmostAgentIsItsSession) {
    add(10, 1, "bash");
    add(11, 10, "claude");
    addServer(12, 11);
    add(13, 11, "bash");
    add(14, 13, "claude"); // started by the agent
    addServer(15, 14);
    add(16, 10, "sleep"); // of the same shell
    add(20, 1, "code");
    add(21, 20, "codex"); // inside an editor
    add(22, 21, "cargo");
    add(23, 20, "node");
    add(30, 1, "gemini").info->uid = 1001; // somebody else's
    EXPECT_EQ(sessions(), (QStringList{u"11: 11 12 13 14 15"_s, u"21: 21 22"_s}));
    QStringList tree;
    for (const SessionProcess& each : session(11).processes)
        tree.append(u"%1 %2 %3"_s.arg(each.process.pid).arg(each.depth).arg(static_cast<int>(each.part)));
    EXPECT_EQ(tree, (QStringList{u"11 0 0"_s, u"12 1 1"_s, u"13 1 4"_s, u"14 2 0"_s, u"15 3 1"_s}));
}

TEST_F(SessionsTest, AProcessThatLosesItsParentStays) {
    add(11, 1, "claude");
    add(12, 11, "bash");
    add(13, 12, "vite");
    pass(); // seen, while nobody wants sessions
    end(12);
    reparent(13);
    EXPECT_EQ(sessions(), QStringList(u"11: 11 13"_s));
    add(14, 13, "esbuild");
    EXPECT_EQ(sessions(), QStringList(u"11: 11 13 14"_s));
    end(13);
    pass(1);
    add(13, 1, "sshd").info->start += 1h; // the PID again
    reparent(14);
    EXPECT_EQ(sessions(), QStringList(u"11: 11 14"_s));
}

TEST_F(SessionsTest, WhatLostItsParentBeforeIsFoundByWhatItInherited) {
    add(11, 1, "claude");
    writeWord(11, R"(, "sessionId": "A")");
    add(12, 1, "claude");
    add(13, 12, "bash").inheritance = withId("B"); // from which the id of the second is learnt
    add(20, 1, "vite").inheritance = withId("A");
    add(21, 20, "esbuild");
    add(22, 1, "vite").inheritance = withId("B");
    add(23, 1, "claude").inheritance = withId("A"); // started in the background by the first
    add(24, 1, "vite").info->uid = 1001;
    fakes.processes->processes[24].inheritance = withId("A");
    add(30, 11, "bash").inheritance = {.sessionLeader = 30};
    add(31, 1, "tail").inheritance = {.sessionLeader = 30};
    add(32, 1, "tail").inheritance = {.sessionLeader = 1};
    add(40, 1, "codex").inheritance = {.controlGroup = "/user.slice/run-1.scope"};
    add(41, 1, "tail").inheritance = {.controlGroup = "/user.slice/run-1.scope"};
    EXPECT_EQ(sessions(), (QStringList{u"11: 11 20 21 23 30 31"_s, u"12: 12 13 22"_s, u"40: 40 41"_s}));
}

TEST_F(SessionsTest, ANumberThatNobodyHadMeanwhileProvesNothing) {
    add(11, 1, "claude");
    add(30, 11, "bash").inheritance = {.sessionLeader = 30};
    add(31, 1, "tail").inheritance = {.sessionLeader = 30};
    EXPECT_EQ(sessions(), QStringList(u"11: 11 30 31"_s));
    end(30);
    end(31);
    pass();
    FakeProcess& stranger = add(32, 1, "daemon");
    stranger.inheritance = {.sessionLeader = 30};
    stranger.info->start = fakes.clock->wall;
    EXPECT_EQ(sessions(), QStringList(u"11: 11"_s));
}

TEST_F(SessionsTest, AGroupThatCannotBeReadIsNobodysOwn) {
    fakes.processes->processes[1].inheritance = {};
    add(40, 1, "codex").inheritance = {.controlGroup = "/user.slice/login.scope"};
    add(41, 1, "tail").inheritance = {.controlGroup = "/user.slice/login.scope"};
    EXPECT_EQ(sessions(), QStringList(u"40: 40"_s));
}

TEST_F(SessionsTest, WhatAPersonUsesIsNobodysByInheritance) {
    add(11, 1, "claude");
    writeWord(11, R"(, "sessionId": "A")");
    const QList<QByteArray> used = {"tmux",      "konsole", "code",   "chromium",
                                    "gpg-agent", "evince",  "conmon", "firefox"};
    fakes.applications->byProgram[u"/usr/bin/evince"_s] = {u"evince"_s, u"Documents"_s};
    qint32 pid = 100;
    for (const QByteArray& name : used) {
        add(pid, 1, name).inheritance = withId("A");
        add(pid + 1, pid, "bash").inheritance = withId("A");
        pid += 10;
    }
    add(101 + 1, 101, "claude"); // in the multiplexer
    add(200, 1, "chromium", "chromium --headless --remote-debugging-port=0").inheritance = withId("A");
    add(201, 200, "chromium", "chromium --type=renderer");
    for (const auto& [handler, folder] : {std::pair(202, "/usr/bin/"), std::pair(203, "/opt/other/")}) {
        FakeProcess& process = add(handler, 1, "chrome_crashpad_handler");
        process.path = QByteArray(folder) + "chrome_crashpad_handler";
        process.inheritance = withId("A");
        fakes.applications->byProgram[QString::fromUtf8(process.path)] = {u"chromium"_s, u"Chromium"_s};
    }
    EXPECT_EQ(sessions(), (QStringList{u"102: 102"_s, u"11: 11 200 201 202"_s}));
    add(50, 11, "bash");
    add(51, 50, "tmux");
    add(52, 51, "bash");
    pass();
    end(50);
    reparent(51);
    EXPECT_EQ(sessions(), (QStringList{u"102: 102"_s, u"11: 11 200 201 202"_s}))
        << "also if it was below the agent";
}

TEST_F(SessionsTest, WhatAnEndedSessionLeft) {
    add(11, 1, "claude").folder = QFile::encodeName(home.path(u"src/app"_s));
    addServer(12, 11);
    add(13, 11, "vite");
    add(14, 1, "claude").folder = fakes.processes->processes[11].folder;
    fakes.listeningPorts->listening = {{.id = 7, .uid = 1000, .port = 5173}};
    fakes.listeningPorts->byProcess[13] = {7};
    EXPECT_EQ(sessions(), (QStringList{u"11: 11 12 13"_s, u"14: 14"_s}));
    EXPECT_EQ(leftOvers(), QStringList());
    end(11);
    reparent(12);
    reparent(13);
    const Instant ended = fakes.clock->wall + 2s;
    pass(1);
    EXPECT_EQ(report(1).leftOvers, QList<LeftOver>()) << "they may still end by themselves";
    EXPECT_EQ(leftOvers(), QStringList(u"12 13"_s));
    EXPECT_EQ(sessions(), QStringList(u"14: 14"_s));
    const LeftOver left = model->sessionReport().leftOvers.first();
    EXPECT_EQ(left.agent, u"claude"_s);
    EXPECT_EQ(left.folder, home.path(u"src/app"_s));
    EXPECT_EQ(left.ended, ended);
    EXPECT_EQ(left.processes.last().ports, QList<quint16>{5173});
    end(12);
    end(13);
    EXPECT_EQ(leftOvers(), QStringList());
}

TEST_F(SessionsTest, WhatASessionLeftBeforeThisProgramStarted) {
    add(12, 1, "vite").inheritance = withId("A", "/src/app");
    add(13, 1, "vite").inheritance = withId("A", "/src/app");
    add(14, 1, "vite").inheritance = withId("B", "/src/lib");
    EXPECT_EQ(leftOvers(), (QStringList{u"12 13"_s, u"14"_s}));
    EXPECT_EQ(model->sessionReport().leftOvers.first().ended, std::nullopt);
}

TEST_F(SessionsTest, AnUnknownIdMayBeAnEarlierOneOfARunningSession) {
    add(11, 1, "claude").folder = "/src/app";
    add(12, 1, "claude").folder = "/src/app";
    add(13, 1, "claude").folder = "/src/lib";
    writeWord(11, R"(, "sessionId": "B", "cwd": "/src/app")");
    add(20, 1, "vite").inheritance = withId("A", "/src/app");
    add(21, 1, "vite").inheritance = withId("B", "/src/app");
    add(5, 1, "vite").inheritance = withId("C", "/src/app"); // older than both
    EXPECT_EQ(sessions(), (QStringList{u"11: 11 21"_s, u"12: 12 20"_s, u"13: 13"_s}));
    EXPECT_EQ(leftOvers(), QStringList(u"5"_s));
}

TEST_F(SessionsTest, NothingIsReadUntilItIsWantedAndThenOnce) {
    add(11, 1, "claude");
    for (qint32 pid = 100; pid < 220; ++pid)
        add(pid, 11, "node");
    pass();
    EXPECT_EQ(fakes.processes->inheritances, QList<qint32>());
    EXPECT_EQ(fakes.listeningPorts->listings, 0);
    EXPECT_EQ(model->sessionReport(), SessionReport());
    report(1);
    EXPECT_EQ(fakes.processes->inheritances.size(), 101) << "50 at once, 50 in the tick, the host's parent";
    report(4);
    EXPECT_EQ(fakes.processes->inheritances.size(), 122);
    EXPECT_EQ(QSet<qint32>(fakes.processes->inheritances.begin(), fakes.processes->inheritances.end()).size(),
              122);
}

TEST_F(SessionsTest, TwentySessionsKeepTheirOwn) {
    QStringList expected;
    for (qint32 host = 100; host < 2100; host += 100) {
        add(host, 1, host % 200 == 0 ? "claude" : "codex");
        for (qint32 child = 1; child < 20; ++child)
            add(host + child, host + child / 2, "node");
        expected.append(u"%1: "_s.arg(host) + [host] {
            QStringList pids;
            for (qint32 pid = host; pid < host + 20; ++pid)
                pids.append(QString::number(pid));
            return pids.join(u' ');
        }());
    }
    expected.sort();
    EXPECT_EQ(sessions(), expected);
    for (qint32 host = 100; host < 2100; host += 100) {
        end(host + 1); // its children 2 and 3 lose their parent
        reparent(host + 2);
        reparent(host + 3);
    }
    for (QString& line : expected)
        line.remove(QRegularExpression(u" \\d+01\\b"_s));
    EXPECT_EQ(sessions(), expected);
}

TEST_F(SessionsTest, TheAgentsOwnWord) {
    add(11, 1, "claude").folder = "/src/app";
    add(12, 1, "codex");
    EXPECT_EQ(report().sessions.size(), 2);
    EXPECT_EQ(session(11).state, SessionState::idle);
    EXPECT_EQ(session(11).lastActive, std::nullopt);
    const auto since =
        std::chrono::duration_cast<std::chrono::milliseconds>((fakes.clock->wall - 90s).time_since_epoch());
    writeWord(11, R"(, "status": "waiting", "waitingFor": "permission", "name": "fix it", "version": "2.1.3",
                     "cwd": "/src/lib", "statusUpdatedAt": )" +
                      QByteArray::number(static_cast<qint64>(since.count())));
    report();
    EXPECT_EQ(session(11).state, SessionState::waiting);
    EXPECT_EQ(session(11).waitingFor, u"permission"_s);
    EXPECT_EQ(session(11).version, u"2.1.3"_s);
    EXPECT_EQ(session(11).title(), u"claude in /src/lib"_s);
    EXPECT_EQ(session(11).lastActive, Instant(since));
    EXPECT_EQ(session(11).resumeCommand, u"cd /src/lib && claude --continue"_s);
    writeWord(11, R"(, "status": "busy")");
    report();
    EXPECT_EQ(session(11).state, SessionState::working);
    fakes.processes->processes[12].task->cpuTimeNs += 1'000'000'000; // half a core
    report(1);
    EXPECT_EQ(session(12).state, SessionState::working);
    report(6);
    EXPECT_EQ(session(12).state, SessionState::idle);
}

TEST(SessionFileTest, ForeignStaleAndHostileFilesSayNothing) {
    const Instant now(1000s);
    const auto parsed = [now](const QByteArray& text) { return SessionFile::parse(text, 7, 70, now); };
    ASSERT_TRUE(parsed(R"({"pid": 7, "procStart": 70})"));
    ASSERT_TRUE(parsed(R"({"pid": 7, "procStart": "70"})"));
    for (const char* text :
         {"", "[]", "null", "{", R"({"pid": 8, "procStart": 70})", R"({"pid": 7, "procStart": 71})",
          R"({"pid": 7})", R"({"pid": -7, "procStart": 70})", R"({"pid": 7, "procStart": 1e300})"})
        EXPECT_FALSE(parsed(text)) << text;
    const auto odd = parsed(R"({"pid": 7, "procStart": 70, "cwd": "../x", "status": 3, "name": ["x"],
                                "statusUpdatedAt": 1000001, "version": ")" +
                            QByteArray(5000, 'v') + R"("})");
    ASSERT_TRUE(odd);
    EXPECT_EQ(odd->folder, QString());
    EXPECT_EQ(odd->state, std::nullopt);
    EXPECT_EQ(odd->name, QString());
    EXPECT_EQ(odd->changed, std::nullopt) << "it is in the future";
    EXPECT_EQ(odd->version.size(), 200);
    for (const char* beyondTheClock : {"9699999999000", "\"18446744073709551615\""})
        EXPECT_EQ(parsed(QByteArray(R"({"pid": 7, "procStart": 70, "updatedAt": )") + beyondTheClock + '}')
                      ->changed,
                  std::nullopt);
}

TEST(SessionFileTest, OnlyARegularFileIsRead) {
    const TemporaryFolder folder;
    const QByteArray text = R"({"pid": 7, "procStart": 70})";
    const auto read = [&](const QString& name) {
        return SessionFile().refresh(QFile::encodeName(folder.path(name)), 7, 70, Instant(1000s)).has_value();
    };
    folder.makeFile(u"good"_s, text);
    folder.makeFile(u"large"_s, text + QByteArray(70000, ' '));
    QFile::link(folder.path(u"good"_s), folder.path(u"link"_s));
    folder.makeFolder(u"folder"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.path(u"pipe"_s)), 0600), 0);
    EXPECT_TRUE(read(u"good"_s));
    for (const QString& name : {u"large"_s, u"link"_s, u"folder"_s, u"pipe"_s, u"missing"_s})
        EXPECT_FALSE(read(name)) << qPrintable(name);
    SessionFile file;
    const QByteArray path = QFile::encodeName(folder.path(u"good"_s));
    EXPECT_TRUE(file.refresh(path, 7, 70, Instant(1000s)));
    QFile::remove(folder.path(u"good"_s));
    EXPECT_FALSE(file.refresh(path, 7, 70, Instant(1000s)));
}

TEST_F(SessionsTest, PortsAreSearchedForOnlyWhileAnOwnerIsUnknown) {
    add(11, 1, "claude");
    add(12, 11, "vite");
    FakeListeningPorts& ports = *fakes.listeningPorts;
    ports.listening = {{.id = 7, .uid = 1000, .port = 5173},
                       {.id = 8, .uid = 1000, .port = 5174},
                       {.id = 9, .uid = 0, .port = 22}};
    ports.byProcess = {{12, {7, 8}}, {11, {9}}};
    report();
    EXPECT_EQ(session(11).processes.last().ports, (QList<quint16>{5173, 5174}));
    EXPECT_EQ(session(11).processes.last().part, SessionPart::devServer);
    EXPECT_EQ(ports.searched, (QList<qint32>{12, 11}));
    ports.listening.append({.id = 10, .uid = 1000, .port = 80}); // of no session
    report();
    EXPECT_EQ(ports.searched.size(), 4) << "each once";
    ports.listening = {{.id = 7, .uid = 1000, .port = 5173}};
    report();
    EXPECT_EQ(session(11).processes.last().ports, QList<quint16>{5173});
}

TEST(SessionActivityTest, OnlyMoreThanTheUsualLoadIsActivity) {
    SessionActivity activity;
    Instant now(1000s);
    const auto add = [&](double percent) { activity.add(percent, now += 2s); };
    for (int i = 0; i < 100; ++i)
        add(4 + i % 2); // a screen that draws itself all the time
    EXPECT_EQ(activity.lastActive(), std::nullopt);
    add(30);
    EXPECT_EQ(activity.lastActive(), now);
    EXPECT_TRUE(activity.isWorking(now));
    for (int i = 0; i < 5; ++i)
        add(4);
    EXPECT_FALSE(activity.isWorking(now));
    EXPECT_EQ(activity.lastActive(), now - 10s);
}

TEST_F(SessionsTest, AllButTheNewestOfTheSameServersAreDuplicates) {
    add(11, 1, "claude");
    addServer(12, 11);
    add(13, 11, "npx", "npx mcp-server-memory");
    addServer(14, 13);
    addServer(15, 11);
    addServer(16, 11, "node mcp-server-memory --other");
    add(20, 1, "claude");
    addServer(21, 20); // of another host
    const QList<DuplicateServers> found = report().duplicates;
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].host.pid, 11);
    EXPECT_EQ(pidsOf(found[0].older), u"12 13 14"_s);
}

TEST(ResumeCommandTest, IsSafeToPaste) {
    const TemporaryHome home;
    EXPECT_EQ(resumeCommand(u"codex"_s, home.path(u"src/app"_s)), u"cd ~/src/app && codex resume --last"_s);
    EXPECT_EQ(resumeCommand(u"claude"_s, u"/src/my app; rm -rf ~"_s),
              u"cd '/src/my app; rm -rf ~' && claude --continue"_s);
    EXPECT_EQ(resumeCommand(u"claude"_s, u"/src/it's"_s), u"cd '/src/it'\\''s' && claude --continue"_s);
    EXPECT_EQ(resumeCommand(u"claude"_s, u"/src/Über=1"_s), u"cd /src/Über=1 && claude --continue"_s);
    EXPECT_EQ(resumeCommand(u"claude"_s, home.path(u"a b"_s)),
              u"cd '%1' && claude --continue"_s.arg(home.path(u"a b"_s)));
    EXPECT_EQ(ProcessInspection::shellLine({"env", "", "A=1", "$x", "it's"}),
              u"env '' A=1 '$x' 'it'\\''s'"_s);
    for (const auto& [agent, folder] : {std::pair(u"unknown"_s, u"/src"_s), std::pair(u"claude"_s, QString()),
                                        std::pair(u"claude"_s, u"/src/\n rm"_s)})
        EXPECT_EQ(resumeCommand(agent, folder), QString());
}

TEST(PackageVersionTest, OfThePackageOrTheFolder) {
    const TemporaryFolder folder;
    folder.makeFile(u"node_modules/@openai/codex/package.json"_s, R"({"version": "0.169.0"})");
    folder.makeFile(u"node_modules/@openai/codex/bin/codex.js"_s);
    folder.makeFolder(u"node_modules/.bin"_s);
    QFile::link(folder.path(u"node_modules/@openai/codex/bin/codex.js"_s),
                folder.path(u"node_modules/.bin/codex"_s));
    folder.makeFile(u"share/claude/versions/2.1.3"_s);
    folder.makeFile(u"node_modules/broken/package.json"_s, "{");
    folder.makeFile(u"node_modules/broken/x.js"_s);
    EXPECT_EQ(packageVersion(folder.path(u"node_modules/.bin/codex"_s)), u"0.169.0"_s);
    EXPECT_EQ(packageVersion(folder.path(u"share/claude/versions/2.1.3"_s)), u"2.1.3"_s);
    EXPECT_EQ(packageVersion(folder.path(u"node_modules/broken/x.js"_s)), QString());
    EXPECT_EQ(packageVersion(u"codex"_s), QString());
}
