#include "Platform/Linux/LinuxMemoryKills.h"
#include "Platform/Linux/LinuxPressure.h"

#include "support/ScriptedTools.h"
#include "support/TemporaryFolder.h"

#include <QCoroTask>
#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray memoryFile = "some avg10=12.50 avg60=3.00 avg300=0.70 total=123\n"
                              "full avg10=4.25 avg60=1.00 avg300=0.20 total=45\n";

} // namespace

TEST(PressureTest, ReadsTheKernelsWordAndNothingElse) {
    EXPECT_EQ(LinuxPressure::level(memoryFile.toStdString()), (PressureLevel{.some = 12.5, .full = 4.25}));
    EXPECT_EQ(LinuxPressure::level("some avg10=1.00 avg60=0\n"), (PressureLevel{.some = 1, .full = 0}));
    for (const char* text : {"", "some", "some avg10=", "some avg10=x", "some avg10=-1.0", "some avg10=1e9",
                             "full avg10=1.0", "some avg10=nan"})
        EXPECT_EQ(LinuxPressure::level(text), std::nullopt) << text;
}

TEST(PressureTest, WithoutTheMachinesFileThatOfTheUsersManagerIsRead) {
    const TemporaryFolder root;
    LinuxPressure none(root.path());
    EXPECT_EQ(none.memory(), std::nullopt);
    EXPECT_EQ(none.disk(), std::nullopt);

    const QString user = QString::number(getuid());
    const QString group =
        u"sys/fs/cgroup/user.slice/user-%1.slice/user@%1.service/memory.pressure"_s.arg(user);
    root.makeFile(group, memoryFile);
    LinuxPressure ofUser(root.path());
    root.makeFile(group, memoryFile); // a plain file takes what the kernel takes as a wish
    EXPECT_EQ(ofUser.memory().value_or(PressureLevel()).some, 12.5);
    root.makeFile(u"proc/pressure/memory"_s, "some avg10=1.00\n");
    LinuxPressure ofMachine(root.path());
    root.makeFile(u"proc/pressure/memory"_s, "some avg10=1.00\n");
    EXPECT_EQ(ofMachine.memory().value_or(PressureLevel()).some, 1);
}

TEST(MemoryKillsTest, CountsForTheMachineOrForItsOwnGroup) {
    const auto tools = std::make_shared<ScriptedTools>();
    const QDBusConnection noBus{QString()};
    const TemporaryFolder root;
    EXPECT_EQ(LinuxMemoryKills(tools, noBus, root.path()).count(), std::nullopt);
    root.makeFile(u"proc/self/cgroup"_s, "0::/user.slice/app.scope\n");
    root.makeFile(u"sys/fs/cgroup/user.slice/app.scope/memory.events"_s, "low 0\noom 9\noom_kill 3\n");
    EXPECT_EQ(LinuxMemoryKills(tools, noBus, root.path()).count(), 3U);
    root.makeFile(u"proc/vmstat"_s, "nr_free_pages 1\noom_kill 7\nswap_ra 2\n");
    EXPECT_EQ(LinuxMemoryKills(tools, noBus, root.path()).count(), 7U);
}

TEST(MemoryKillsTest, ReadsTheLinesOfTheKernelAndOfEarlyoom) {
    const auto kills = LinuxMemoryKills::parse(
        u"oom-kill:constraint=CONSTRAINT_NONE,nodemask=(null),cpuset=/"
        u",mems_allowed=0,task=chrome,pid=4711,uid=1000\n"
        "Out of memory: Killed process 4711 (chrome) total-vm:9000kB, anon-rss:2048kB, file-rss:8kB, "
        "UID:1000\n"
        "Memory cgroup out of memory: Killed process 12 (a (b) c) total-vm:1kB, anon-rss:1024kB, "
        "file-rss:0kB\n"
        "mem avail:   500 of 24000 MiB ( 2.08%), swap free: 0 of 0 MiB ( 0.00%)\n"
        "sending SIGTERM to process 99 uid 1000 \"java\": badness 987, VmRSS 321 MiB\n"
        "sending SIGKILL to process x uid 1000 \"java\": badness 987, VmRSS 321 MiB\n"_s);
    EXPECT_EQ(kills,
              (QList<RecordedKill>{{.pid = 4711, .name = u"chrome"_s, .bytes = 2048 << 10},
                                   {.pid = 12, .name = u"a (b) c"_s, .bytes = 1024 << 10},
                                   {.pid = 99, .name = u"java"_s, .bytes = 321 << 20, .by = u"earlyoom"_s}}));
    EXPECT_TRUE(LinuxMemoryKills::parse({}).isEmpty());
}

TEST(MemoryKillsTest, HearsTheServiceThatWatchesMemory) {
    const TemporaryFolder folder;
    QProcess bus;
    bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s,
                                 u"--address=unix:dir="_s + folder.path()});
    ASSERT_TRUE(bus.waitForStarted() && bus.waitForReadyRead());
    const QString address = QString::fromLatin1(bus.readLine().trimmed());
    const auto tools = std::make_shared<ScriptedTools>();
    LinuxMemoryKills kills(tools, QDBusConnection::connectToBus(address, u"kills"_s));
    QSignalSpy ended(&kills, &MemoryKills::groupEnded);
    auto killed = QDBusMessage::createSignal(u"/org/freedesktop/oom1"_s, u"org.freedesktop.oom1.Manager"_s,
                                             u"Killed"_s);
    killed << u"/user.slice/app.slice/app-java.scope"_s << u"memory-pressure"_s;
    QDBusConnection service = QDBusConnection::connectToBus(address, u"service"_s);
    // The wish for the signal is on its way; it is sent until it is heard.
    EXPECT_TRUE(QTest::qWaitFor([&] {
        service.send(killed);
        return !ended.isEmpty();
    }));
    EXPECT_EQ(ended.value(0).value(0), u"app-java.scope"_s);
    EXPECT_EQ(ended.value(0).value(1), u"systemd-oomd"_s);
    QDBusConnection::disconnectFromBus(u"kills"_s);
    QDBusConnection::disconnectFromBus(u"service"_s);
    bus.kill();
    bus.waitForFinished();
}
