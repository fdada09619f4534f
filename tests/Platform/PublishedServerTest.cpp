#include "AppModel.h"
#include "Core/ActionLogFile.h"
#include "Core/Formatters.h"
#include "Platform/Child.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using MCPInspector::LiveServer;

/// The whole program on the whole machine; only its home folder is its own.
struct PublishedServerTest : testing::Test {
    TemporaryHome home;
    TemporarySettings settings;
    AppModel model{Platform::native(), settings.preferences};

    /// Ticks until the report has such a server; a server with the id 0 when it never has.
    LiveServer waitFor(const std::function<bool(const LiveServer&)>& isTheOne) {
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 30000; QThread::msleep(200)) {
            QMetaObject::invokeMethod(&model, "tick");
            const auto& live = model.mcpReport().live;
            const auto found = std::find_if(live.begin(), live.end(), isTheOne);
            if (found != live.end())
                return *found;
        }
        return {};
    }
    QList<qint32> orphans() const {
        QList<qint32> pids;
        for (const LiveServer& server : model.mcpReport().live) {
            if (server.isOrphan)
                pids.append(server.pid);
        }
        return pids;
    }
};

void print(const char* state, const LiveServer& server) {
    std::printf("%s: %s, PID %d, parent %s, %s\n", state, qPrintable(server.displayLabel), server.pid,
                qPrintable(server.parentName), qPrintable(Formatters::bytes(server.rssBytes)));
}

/// Whether the process is there and no mere remains.
bool isRunning(qint32 pid) {
    const QByteArray state = outputOf("ps -o stat= -p " + std::to_string(pid));
    return !state.isEmpty() && !state.startsWith('Z');
}

} // namespace

/// For a server that npm has installed; docs/testing.md tells how.
TEST_F(PublishedServerTest, DISABLED_IsAnOrphanOnceItsHostHasEndedAndCanBeKilled) {
    ASSERT_TRUE(QFileInfo(qEnvironmentVariable("TAVRIN_MCP_SERVER")).isExecutable());
    const QString claude = home.path(u"claude"_s);
    ASSERT_TRUE(QFile::copy(u"/bin/sh"_s, claude));
    // The test holds the other end of what the server reads, so that it outlives its host.
    const QString script =
        home.makeFile(u"host"_s, "exec 3<&0\n\"$TAVRIN_MCP_SERVER\" <&3 >/dev/null 2>&1 &\nwait\n");
    Child host(claude.toStdString(), {"claude", script.toStdString()});
    constexpr quint64 leastOfARuntime = 20 << 20;
    const LiveServer hosted = waitFor([&host](const LiveServer& server) {
        return server.parentPid == host.pid() && server.rssBytes > leastOfARuntime;
    });
    ASSERT_GT(hosted.pid, 0) << "the server does not start, or is not recognized";
    print("running", hosted);
    EXPECT_FALSE(hosted.isOrphan);
    EXPECT_EQ(hosted.parentName, u"claude"_s);
    EXPECT_TRUE(hosted.displayLabel.contains(u"mcp-server"_s));

    host.end();
    const LiveServer orphan =
        waitFor([&hosted](const LiveServer& server) { return server.pid == hosted.pid && server.isOrphan; });
    ASSERT_EQ(orphan.pid, hosted.pid) << "it ended with its host, or is taken for hosted";
    print("orphan", orphan);
    EXPECT_EQ(orphan.displayLabel, hosted.displayLabel);
    ASSERT_EQ(orphans(), QList<qint32>{hosted.pid}) << "others would be killed too: nothing is";
    EXPECT_EQ(model.mcpReport().orphanBytes(), orphan.rssBytes);

    EXPECT_EQ(model.killOrphanMCPs(false), 1);
    QElapsedTimer time;
    for (time.start(); isRunning(hosted.pid) && time.elapsed() < 10000;)
        QThread::msleep(50);
    EXPECT_FALSE(isRunning(hosted.pid));
    QFile log(Cleaner::actionLogPath());
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QByteArray line = log.readAll();
    EXPECT_TRUE(line.endsWith("\tquit\tok\t0\t[orphan MCPs] killed=1/1\n"));
    std::printf("log: %s", line.constData());
}
