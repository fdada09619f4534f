#include "Platform/Unix/UnixToolRunner.h"

#include "Platform/Child.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

ToolResult run(const QString& launchPath, const QStringList& arguments,
               std::optional<std::chrono::milliseconds> timeout = {}, bool captureOutput = true) {
    UnixToolRunner runner;
    return QCoro::waitFor(runner.run({.launchPath = launchPath,
                                      .arguments = arguments,
                                      .captureOutput = captureOutput,
                                      .timeout = timeout}));
}

ToolResult runShell(const QString& command, std::optional<std::chrono::milliseconds> timeout = {},
                    bool captureOutput = true) {
    return run(u"/bin/sh"_s, {u"-c"_s, command}, timeout, captureOutput);
}

std::string hostCommand(const QString& verb, const QString& command) {
    const QString host = QCoreApplication::applicationDirPath() + u"/tool_host"_s;
    return u"'%1' %2 '%3'"_s.arg(host, verb, command).toStdString();
}

/// Returns false for a zombie.
bool isRunning(const QByteArray& pid) {
    const QByteArray state = outputOf("ps -o stat= -p " + pid.toStdString());
    return !state.isEmpty() && !state.startsWith('Z');
}

} // namespace

TEST(ToolRunner, TellsHowAProgramEnded) {
    EXPECT_EQ(runShell(u"exit 0"_s).exitStatus, 0);
    EXPECT_TRUE(runShell(u"exit 0"_s).succeeded());
    EXPECT_EQ(runShell(u"exit 3"_s).exitStatus, 3);
    EXPECT_FALSE(runShell(u"exit 3"_s).succeeded());
    const ToolResult crashed = runShell(u"kill -KILL $$"_s);
    EXPECT_TRUE(crashed.launched);
    EXPECT_EQ(crashed.exitStatus, -1);
}

TEST(ToolRunner, TellsItAlsoWhereWhoeverStartedUsIgnoredTheEndOfChildren) {
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(runShell(u"exit 0"_s).exitStatus, 0);
    std::signal(SIGCHLD, before);
}

TEST(ToolRunner, AnswersAtOnceForWhatCannotBeLaunched) {
    TemporaryFolder tree;
    tree.makeFile(u"plain"_s, "not a program");
    QElapsedTimer time;
    time.start();
    for (const QString& path :
         {u"/nowhere/tool"_s, tree.path() + u"/plain"_s, tree.path(), u"/dev/null"_s, QString()}) {
        const ToolResult result = run(path, {});
        EXPECT_FALSE(result.launched) << qPrintable(path);
        EXPECT_EQ(result.exitStatus, -1) << qPrintable(path);
    }
    EXPECT_LT(time.elapsed(), 2000);
}

TEST(ToolRunner, KeepsOutputByteForByteAndDropsTheRest) {
    const ToolResult large = run(u"/usr/bin/head"_s, {u"-c"_s, u"1048576"_s, u"/dev/zero"_s});
    EXPECT_EQ(large.output, QByteArray(1048576, '\0'));
    EXPECT_EQ(runShell(u"printf '\\377\\376\\303'"_s).output, "\377\376\303");
    EXPECT_EQ(runShell(u"echo no >&2; echo yes"_s).output, "yes\n");

    const auto chatty = u"head -c 4194304 /dev/zero >&2; head -c 4194304 /dev/zero; exit 7"_s;
    const ToolResult unasked = runShell(chatty, {}, false);
    EXPECT_EQ(unasked.exitStatus, 7);
    EXPECT_TRUE(unasked.output.isEmpty());
}

TEST(ToolRunner, TerminatesWhatTakesTooLong) {
    const std::tuple<QString, int, qint64, qint64> cases[] = {
        {u"exec sleep 60"_s, -1, 200, 1100},
        {u"trap 'exit 5' TERM; while :; do sleep 0.05; done"_s, 5, 200, 1100},
        {u"trap '' TERM; exec sleep 60"_s, -1, 1200, 4000},
        {u"exit 4"_s, 4, 0, 200}};
    for (const auto& [command, status, minMs, maxMs] : cases) {
        QElapsedTimer time;
        time.start();
        const ToolResult result = runShell(command, 200ms);
        EXPECT_TRUE(result.launched) << qPrintable(command);
        EXPECT_EQ(result.exitStatus, status) << qPrintable(command);
        EXPECT_GE(time.elapsed(), minMs) << qPrintable(command);
        EXPECT_LT(time.elapsed(), maxMs) << qPrintable(command);
    }
}

TEST(ToolRunner, PassesOnLinesAsTheyComeAndWaitsForTheNext) {
    UnixToolRunner runner;
    QByteArrayList lines;
    QList<qint64> times;
    QElapsedTimer time;
    time.start();
    ToolRequest request{
        .launchPath = u"/bin/sh"_s,
        .arguments = {u"-c"_s, u"for i in 1 2 3 4; do echo \"line $i\"; sleep 0.3; done; printf end"_s},
        .captureOutput = true,
        .timeout = 700ms,
        .onOutput = [&](const QByteArray& line) {
            lines.append(line);
            times.append(time.elapsed());
        }};
    const ToolResult result = QCoro::waitFor(runner.run(request));
    EXPECT_TRUE(result.succeeded()) << "it took longer than its timeout, but no line did";
    EXPECT_EQ(lines, QByteArrayList({"line 1", "line 2", "line 3", "line 4"}));
    EXPECT_EQ(result.output, "line 1\nline 2\nline 3\nline 4\nend");
    EXPECT_LT(times.value(0), 300);

    lines.clear();
    request.arguments[1] = u"echo one; sleep 60"_s;
    request.captureOutput = false;
    time.restart();
    const ToolResult silent = QCoro::waitFor(runner.run(request));
    EXPECT_FALSE(silent.succeeded());
    EXPECT_LT(time.elapsed(), 3000);
    EXPECT_EQ(lines, QByteArrayList({"one"}));
    EXPECT_TRUE(silent.output.isEmpty());

    lines.clear();
    request.arguments[1] = u"printf 'two\\nlines\\0last\\0end'"_s;
    request.lineEnd = '\0';
    QCoro::waitFor(runner.run(request));
    EXPECT_EQ(lines, QByteArrayList({"two\nlines", "last"}));
}

TEST(ToolRunner, PassesOnWhatTheToolIsToRead) {
    UnixToolRunner runner;
    const QByteArray much(1 << 20, '\0');
    const auto fed = [&](const QString& path) {
        return QCoro::waitFor(runner.run({.launchPath = path, .captureOutput = true, .input = much}));
    };
    EXPECT_EQ(fed(u"/bin/cat"_s).output, much);
    EXPECT_EQ(run(u"/bin/cat"_s, {}).output, QByteArray()) << "nothing to read";
    EXPECT_TRUE(fed(u"/bin/true"_s).succeeded()) << "which reads nothing";
    EXPECT_FALSE(fed(u"/nowhere/tool"_s).launched);
}

TEST(ToolRunner, EndsAToolWhenAskedToWhateverItHasStarted) {
    const std::pair<QString, qint64> cases[] = {{u"sleep 60 & sleep 61"_s, 1000},
                                                {u"trap '' TERM; sleep 60 & wait"_s, 3000}};
    for (const auto& [command, maxMs] : cases) {
        UnixToolRunner runner;
        std::stop_source stop;
        QTimer::singleShot(100ms, [&] { stop.request_stop(); });
        QElapsedTimer time;
        time.start();
        const ToolResult result = QCoro::waitFor(runner.run(
            {.launchPath = u"/bin/sh"_s, .arguments = {u"-c"_s, command}, .stop = stop.get_token()}));
        EXPECT_FALSE(result.succeeded()) << qPrintable(command);
        EXPECT_LT(time.elapsed(), maxMs) << qPrintable(command);
    }
}

TEST(ToolRunner, RunsItsChildrenBehindEverythingElse) {
    const int expected = std::min(19, getpriority(PRIO_PROCESS, 0) + 10);
    EXPECT_EQ(runShell(u"sleep 0.2; nice"_s).output.trimmed().toInt(), expected);
    EXPECT_EQ(runShell(u"ionice -p $$"_s).output, "best-effort: prio 7\n");
}

TEST(ToolRunner, GivesChildrenTheDescriptorLimitWeWereStartedWith) {
    const QByteArray limits =
        outputOf("ulimit -Sn 300; " + hostCommand(u"wait"_s, u"ulimit -Sn; ulimit -Hn"_s));
    EXPECT_EQ(limits, "300\n" + outputOf("ulimit -Hn"));
}

TEST(ToolRunner, LeavesNoChildBehindAndIsNotHeldUpByOne) {
    for (const auto& command : {u"echo $$ >%1; exec sleep 60"_s, u"sleep 60 & echo $! >%1; wait"_s,
                                u"trap : TERM; echo $$ >%1; while :; do sleep 1; done"_s}) {
        const TemporaryFolder tree;
        const QString note = tree.path() + u"/pid"_s;
        QElapsedTimer time;
        time.start();
        outputOf(hostCommand(u"leave"_s, command.arg(note)));
        EXPECT_LT(time.elapsed(), 5000) << qPrintable(command);
        const QByteArray pid = contentOf(note).trimmed();
        ASSERT_GT(pid.toInt(), 1) << qPrintable(command);
        EXPECT_TRUE(QTest::qWaitFor([&pid] { return !isRunning(pid); })) << qPrintable(command);
    }
}

TEST(ToolRunner, AnswersForToolsThatLinuxLacks) {
    const UnixToolRunner runner(u"/own"_s);
    for (const auto& path : {u"/usr/bin/memory_pressure"_s, u"/usr/bin/osascript"_s, u"/usr/sbin/purge"_s})
        EXPECT_EQ(runner.programFor(path), u"/own"_s + path.mid(path.lastIndexOf(u'/')));
    for (const auto& path : {u"/usr/bin/du"_s, u"/bin/sh"_s, u"/opt/bin/osascript"_s})
        EXPECT_EQ(runner.programFor(path), path);
}

TEST(ToolRunner, PrefersTheFasterProgramToTheSystemsWhereItCanBeRun) {
    const TemporaryFolder tools;
    const UnixToolRunner runner(tools.path());
    EXPECT_EQ(runner.programFor(u"/usr/bin/du"_s), u"/usr/bin/du"_s);
    const QString ours = tools.makeProgram(u"du"_s, "#!/bin/sh\n");
    EXPECT_EQ(runner.programFor(u"/usr/bin/du"_s), ours);
    EXPECT_EQ(runner.programFor(u"/bin/du"_s), u"/bin/du"_s);
    ASSERT_TRUE(QFile::setPermissions(ours, QFile::ReadOwner));
    EXPECT_EQ(runner.programFor(u"/usr/bin/du"_s), u"/usr/bin/du"_s);
}

TEST(ToolRunner, HearsWhatToolsOfOurOwnComplainAbout) {
    const TemporaryFolder tree;
    const std::tuple<const char*, bool, int, QString> cases[] = {
        {"echo 'no group' >&2; echo more >&2; exit 126", false, -1, u"no group"_s},
        {"echo refused >&2; exit 1", true, 1, u"refused"_s},
        {"exit 0", true, 0, {}}};
    for (const auto& [script, launched, status, errorLine] : cases) {
        tree.makeProgram(u"osascript"_s, QByteArray("#!/bin/sh\n") + script + '\n');
        UnixToolRunner runner(tree.path());
        const ToolResult result = QCoro::waitFor(runner.run({.launchPath = u"/usr/bin/osascript"_s}));
        EXPECT_EQ(result.launched, launched) << script;
        EXPECT_EQ(result.exitStatus, status) << script;
        EXPECT_EQ(result.errorLine, errorLine) << script;
    }
    UnixToolRunner runner(tree.path());
    const ToolResult missing = QCoro::waitFor(runner.run({.launchPath = u"/usr/sbin/purge"_s}));
    EXPECT_TRUE(missing.errorLine.contains(u"No such file"_s)) << qPrintable(missing.errorLine);
    EXPECT_EQ(run(u"/bin/sh"_s, {u"-c"_s, u"echo private >&2; exit 126"_s}).exitStatus, 126);
}
