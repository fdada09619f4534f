#include "Platform/Freedesktop/FreedesktopIdentity.h"
#include "support/TemporaryFolder.h"

#include <QFile>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Waits for connections on a local socket, as a display server does.
class Listener {
public:
    explicit Listener(const QByteArray& path)
        : m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), address.sun_path);
        const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + path.size());
        isOpen = bind(m_descriptor, reinterpret_cast<const sockaddr*>(&address), length) == 0 &&
                 listen(m_descriptor, 1) == 0;
    }
    ~Listener() { close(m_descriptor); }

    bool isOpen;

private:
    int m_descriptor;
};

} // namespace

TEST(FreedesktopIdentity, WhoListensIsTheServerOfADisplay) {
    const TemporaryFolder folder;
    const QByteArray path = QFile::encodeName(folder.path(u"X7"_s));
    EXPECT_EQ(FreedesktopIdentity::listenerOf(path), 0);
    for (const QByteArray& name : {path, '\0' + path}) {
        const Listener server(name);
        ASSERT_TRUE(server.isOpen);
        EXPECT_EQ(FreedesktopIdentity::listenerOf(name), getpid());
    }
    EXPECT_EQ(FreedesktopIdentity::listenerOf(path), 0) << "a socket that a server left behind";
    EXPECT_EQ(FreedesktopIdentity::listenerOf(QByteArray(4000, 'x')), 0);
}

TEST(FreedesktopIdentity, OnlyDisplaysOfThisMachineHaveSockets) {
    const std::pair<const char*, const char*> displays[] = {{":0", "/tmp/.X11-unix/X0"},
                                                            {":12.1", "/tmp/.X11-unix/X12"},
                                                            {"unix:3", "/tmp/.X11-unix/X3"},
                                                            {"localhost:10.0", ""},
                                                            {"host:0", ""},
                                                            {":", ""},
                                                            {":../x", ""},
                                                            {"", ""}};
    for (const auto& [display, socket] : displays)
        EXPECT_EQ(FreedesktopIdentity::socketsOfX11(display).value(0), socket) << display;
    EXPECT_EQ(FreedesktopIdentity::socketOfWayland("wayland-1", "/run/user/7"), "/run/user/7/wayland-1");
    EXPECT_EQ(FreedesktopIdentity::socketOfWayland("/x/y", "/run/user/7"), "/x/y");
    EXPECT_TRUE(FreedesktopIdentity::socketOfWayland("wayland-1", "").isEmpty());
}
