#include "Platform/Linux/Environment.h"
#include "Platform/Linux/LinuxListeningPorts.h"
#include "Platform/Linux/LinuxProcessTable.h"

#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QTcpServer>
#include <QTest>

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int largeEntries = 15; // an entry has at most 128 KiB
constexpr qsizetype largeEntryBytes = 120 << 10;

} // namespace

TEST(SessionTracesTest, AProcessTellsWhatItInherited) {
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (int i = 0; i < largeEntries; ++i)
        environment.insert(u"LARGE_%1"_s.arg(i), QString(largeEntryBytes, u'x'));
    environment.insert(u"zz_SESSION"_s, u"a=b"_s);
    child.setProcessEnvironment(environment);
    child.setChildProcessModifier([] { setsid(); });
    child.start(u"/bin/sleep"_s, {u"1000"_s});
    ASSERT_TRUE(child.waitForStarted());
    const auto pid = static_cast<qint32>(child.processId());
    LinuxProcessTable table;
    ProcessInheritance found;
    // The kernel closes the pipe that tells of the start before it sets up the environment.
    EXPECT_TRUE(QTest::qWaitFor([&] {
        found = table.inheritance(pid, {"zz_SESSION", "zz_MISSING", "SESSION"});
        return !found.variables.isEmpty();
    }));
    EXPECT_EQ(found.sessionLeader, pid);
    EXPECT_EQ(found.variables, (QHash<QByteArray, QByteArray>{{"zz_SESSION", "a=b"}}));
    EXPECT_EQ(found.controlGroup, table.inheritance(getpid(), {}).controlGroup);
    child.kill();
    child.waitForFinished();
    EXPECT_EQ(table.inheritance(pid, {"zz_SESSION"}), ProcessInheritance()) << "it has ended";
}

TEST(SessionTracesTest, AnEnvironmentOfAnyBytes) {
    using Variables = QHash<QByteArray, QByteArray>;
    const auto read = [](const QByteArray& text) { return Environment::variables(text, {"A", "AB"}); };
    EXPECT_EQ(read(QByteArray("A=1\0AB=\0A=2\0", 11)), (Variables{{"A", "1"}, {"AB", ""}}));
    EXPECT_EQ(read(QByteArray("\0\0=\0A\0ABC=1\0xA=1\0A=\xff", 20)), (Variables{{"A", "\xff"}}));
    EXPECT_EQ(read({}), Variables());
}

TEST(SessionTracesTest, ListeningSocketsAndTheirOwner) {
    QTcpServer four;
    QTcpServer six;
    ASSERT_TRUE(four.listen(QHostAddress::LocalHost));
    ASSERT_TRUE(six.listen(QHostAddress::Any));
    LinuxListeningPorts ports;
    LinuxListeningPorts tables("/proc");
    const QList<quint64> own = ports.socketsOf(getpid());
    for (const QList<ListeningSocket>& all : {ports.sockets(), tables.sockets()}) {
        for (const quint16 port : {four.serverPort(), six.serverPort()}) {
            const auto found = std::ranges::find(all, port, &ListeningSocket::port);
            ASSERT_NE(found, all.end()) << port;
            EXPECT_EQ(found->uid, getuid());
            EXPECT_TRUE(own.contains(found->id)) << port;
        }
    }
    EXPECT_EQ(ports.socketsOf(1 << 30), QList<quint64>());
    EXPECT_EQ(LinuxListeningPorts("/nonexistent").sockets(), QList<ListeningSocket>());
}

TEST(SessionTracesTest, OddLinesOfTheSocketTable) {
    const TemporaryFolder proc;
    proc.makeFile(
        u"net/tcp"_s,
        "  sl  local_address rem_address   st\n"
        "   0: 0100007F:1F90 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000        0 77 1\n"
        "   1: garbage 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000        0 78 1\n"
        "   2: 0100007F:0050 00000000:0000 0A\n"
        "   3: 0100007F:0051 0100007F:1F90 01 00000000:00000000 00:00000000 00000000  1000        0 79 1\n"
        "   4: 0100007F:0052 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000        0 80 1\n");
    EXPECT_EQ(LinuxListeningPorts(proc.path().toStdString()).sockets(),
              (QList<ListeningSocket>{{.id = 77, .uid = 1000, .port = 8080}}));
}
