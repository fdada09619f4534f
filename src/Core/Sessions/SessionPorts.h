#pragma once

#include "Core/Sampling/ProcSample.h"
#include "Platform/ListeningPorts.h"

#include <QHash>
#include <QList>

#include <memory>
#include <optional>

/// Finds which processes of sessions listen on which ports. Open files are searched only while the owner of
/// a socket of the user is not known, a few processes a tick, those first that started last.
class SessionPorts {
public:
    SessionPorts(std::shared_ptr<ListeningPorts> ports, quint32 userId);

    /// Looks for the owners of new sockets among these processes.
    void refresh(const QList<const ProcSample*>& members);
    /// Returns the ports of a process, ascending.
    QList<quint16> of(qint32 pid) const { return m_portsOf.value(pid); }

private:
    struct Socket {
        quint16 port = 0;
        std::optional<ProcessIdentity> owner;
        bool isOpen = false;
    };

    void takeSockets();
    void search(QList<const ProcSample*> members);
    void forgetEnded(const QHash<qint32, Instant>& running);
    void listPorts();

    std::shared_ptr<ListeningPorts> m_ports;
    quint32 m_userId;
    QHash<quint64, Socket> m_sockets;  ///< by id
    QHash<qint32, Instant> m_searched; ///< the starts by PID, since the last new socket
    QHash<qint32, QList<quint16>> m_portsOf;
};
