#include "Platform/Freedesktop/FreedesktopIdentity.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>

QList<qint32> FreedesktopIdentity::displayServers() const {
    static const QList<qint32> servers = [] {
        QList<QByteArray> sockets = socketsOfX11(qgetenv("DISPLAY"));
        sockets.append(socketOfWayland(qgetenv("WAYLAND_DISPLAY"), qgetenv("XDG_RUNTIME_DIR")));
        QList<qint32> found;
        for (const QByteArray& socket : std::as_const(sockets)) {
            const qint32 pid = listenerOf(socket);
            if (pid > 0 && !found.contains(pid))
                found.append(pid);
        }
        return found;
    }();
    return servers;
}

QList<QByteArray> FreedesktopIdentity::socketsOfX11(const QByteArray& display) {
    const qsizetype colon = display.lastIndexOf(':');
    const QByteArray host = display.left(std::max<qsizetype>(colon, 0));
    bool isNumber = false;
    const uint number = display.mid(colon + 1).split('.').first().toUInt(&isNumber);
    if (colon < 0 || !isNumber || (!host.isEmpty() && host != "unix"))
        return {};
    const QByteArray path = "/tmp/.X11-unix/X" + QByteArray::number(number);
    return {path, '\0' + path};
}

QByteArray FreedesktopIdentity::socketOfWayland(const QByteArray& display, const QByteArray& runtimeFolder) {
    if (display.startsWith('/') || display.isEmpty())
        return display;
    return runtimeFolder.isEmpty() ? QByteArray() : runtimeFolder + '/' + display;
}

qint32 FreedesktopIdentity::listenerOf(const QByteArray& socketName) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socketName.isEmpty() || socketName.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return 0;
    std::copy(socketName.begin(), socketName.end(), address.sun_path);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0)
        return 0;
    const bool hasNoFolder = socketName.front() == '\0'; // its name ends where the address does
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + socketName.size() + (hasNoFolder ? 0 : 1));
    ucred peer{};
    socklen_t size = sizeof peer;
    const bool isKnown = connect(descriptor, reinterpret_cast<const sockaddr*>(&address), length) == 0 &&
                         getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    close(descriptor);
    return isKnown ? peer.pid : 0;
}
