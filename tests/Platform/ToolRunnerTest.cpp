#include "Platform/Linux/LinuxToolRunner.h"

#include <QCoroTask>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

ToolResult shell(const char* script, bool capture = true,
                 std::optional<std::chrono::milliseconds> limit = {}) {
    LinuxToolRunner runner;
    return QCoro::waitFor(runner.run({.launchPath = QStringLiteral("/bin/sh"),
                                      .arguments = {QStringLiteral("-c"), QString::fromUtf8(script)},
                                      .captureOutput = capture,
                                      .terminateAfter = limit}));
}

} // namespace

TEST(ToolRunner, ReportsStatusAndOutput) {
    struct Case {
        const char* script;
        int status;
        QByteArray output;
    };
    const Case cases[] = {
        {"echo hello; exit 3", 3, "hello\n"},
        {"printf 'a\\0\\377b'", 0, QByteArray("a\0\377b", 4)},
        {"kill -KILL $$", -1, ""},
        {"cat", 0, ""}, // nothing on standard input
        {"head -c 1000000 /dev/zero >&2; echo quiet", 0, "quiet\n"},
    };
    for (const Case& c : cases) {
        const ToolResult result = shell(c.script);
        EXPECT_TRUE(result.launched) << c.script;
        EXPECT_EQ(result.exitStatus, c.status) << c.script;
        EXPECT_EQ(result.output, c.output) << c.script;
        EXPECT_EQ(result.succeeded(), c.status == 0) << c.script;
    }
}

TEST(ToolRunner, MuchOutputBlocksNobody) {
    EXPECT_EQ(shell("head -c 3000000 /dev/zero").output.size(), 3000000);
    const ToolResult dropped = shell("head -c 3000000 /dev/zero", false);
    EXPECT_TRUE(dropped.succeeded());
    EXPECT_TRUE(dropped.output.isEmpty());
}

TEST(ToolRunner, AProgramThatCannotBeLaunchedAnswersAtOnce) {
    const QTemporaryDir folder;
    const QString notExecutable = folder.filePath(QStringLiteral("plain"));
    QFile file(notExecutable);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const QString& path : {folder.filePath(QStringLiteral("missing")), notExecutable, folder.path()}) {
        QElapsedTimer time;
        time.start();
        LinuxToolRunner runner;
        const ToolResult result = QCoro::waitFor(runner.run({.launchPath = path, .arguments = {}}));
        EXPECT_FALSE(result.launched) << qPrintable(path);
        EXPECT_EQ(result.exitStatus, -1);
        EXPECT_LT(time.elapsed(), 2000);
    }
}

TEST(ToolRunner, ALateToolIsTerminatedAndAStubbornOneKilled) {
    for (const char* script : {"exec sleep 60", "trap '' TERM; sleep 60 & wait; sleep 60"}) {
        QElapsedTimer time;
        time.start();
        const ToolResult result = shell(script, false, 200ms);
        EXPECT_TRUE(result.launched);
        EXPECT_FALSE(result.succeeded());
        EXPECT_LT(time.elapsed(), 10000) << script;
    }
}

TEST(ToolRunner, ChildrenAreNiceToTheRestOfTheMachine) {
    EXPECT_GE(shell("cut -d' ' -f19 /proc/$$/stat").output.trimmed().toInt(), 10);
}
