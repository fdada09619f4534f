#pragma once

#include <QList>
#include <QtGlobal>

/// A TCP socket that waits for connections.
struct ListeningSocket {
    quint64 id = 0;  ///< names the socket as long as it is open
    quint32 uid = 0; ///< of the user who made it
    quint16 port = 0;

    bool operator==(const ListeningSocket&) const = default;
};

/// The ports that programs of this machine listen on.
class ListeningPorts {
public:
    virtual ~ListeningPorts() = default;

    /// Returns all listening sockets, none when the system does not tell.
    virtual QList<ListeningSocket> sockets() = 0;
    /// Returns the ids of all sockets that a process has open, none when they are unreadable. Costs a
    /// system call for each open file.
    virtual QList<quint64> socketsOf(qint32 pid) = 0;
};
