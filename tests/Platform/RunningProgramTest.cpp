#include "Platform/Freedesktop/FreedesktopRunningProgram.h"

#include "support/TemporaryFolder.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(RunningProgramTest, ABusThatDoesNotAnswerIsNoBus) {
    const TemporaryFolder folder;
    const QByteArray path = QFile::encodeName(folder.path(u"bus"_s));
    const int bus = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof address.sun_path);
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    ASSERT_EQ(bind(bus, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(bus, 5), 0);
    const QByteArray before = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);
    QElapsedTimer time;
    time.start();
    FreedesktopRunningProgram running(200ms);
    EXPECT_FALSE(running.report(u"status"_s));
    EXPECT_LT(time.elapsed(), 5000);
    before.isNull() ? qunsetenv("DBUS_SESSION_BUS_ADDRESS") : qputenv("DBUS_SESSION_BUS_ADDRESS", before);
    close(bus);
}
