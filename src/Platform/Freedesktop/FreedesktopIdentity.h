#pragma once

#include "Platform/Unix/UnixIdentity.h"

/// Finds the display servers by the sockets that DISPLAY and WAYLAND_DISPLAY name, at the first question.
class FreedesktopIdentity : public UnixIdentity {
public:
    QList<qint32> displayServers() const override;

    /// Returns the process that waits for connections on a local socket, 0 when there is none. A name that
    /// begins with a zero byte is one of no folder.
    static qint32 listenerOf(const QByteArray& socket);
    /// Returns the sockets of a display of X11: none for one of another machine.
    static QList<QByteArray> socketsOfX11(const QByteArray& display);
    /// Returns the socket of a display of Wayland, empty where its folder is not known.
    static QByteArray socketOfWayland(const QByteArray& display, const QByteArray& runtimeFolder);
};
