#include "Core/Sessions/SessionPorts.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int searchesPerTick = 50; // each reads a link for every open file

} // namespace

SessionPorts::SessionPorts(std::shared_ptr<ListeningPorts> ports, quint32 userId)
    : m_ports(std::move(ports))
    , m_userId(userId) {}

void SessionPorts::refresh(const QList<const ProcSample*>& members) {
    QHash<qint32, Instant> running;
    for (const ProcSample* member : members)
        running.insert(member->pid, member->startTime);
    forgetEnded(running);
    takeSockets();
    const auto isUnknown = [](const Socket& socket) { return !socket.owner; };
    if (std::ranges::any_of(m_sockets, isUnknown))
        search(members);
    listPorts();
}

/// A socket whose owner has ended may live on in a process that inherited it.
void SessionPorts::forgetEnded(const QHash<qint32, Instant>& running) {
    const auto hasEnded = [&running](qint32 pid, Instant start) {
        const auto found = running.constFind(pid);
        return found == running.cend() || *found != start;
    };
    m_searched.removeIf([&](const auto& entry) { return hasEnded(entry.key(), entry.value()); });
    for (Socket& socket : m_sockets) {
        if (!socket.owner || !hasEnded(socket.owner->pid, socket.owner->startTime))
            continue;
        socket.owner.reset();
        m_searched.clear();
    }
}

void SessionPorts::takeSockets() {
    for (Socket& socket : m_sockets)
        socket.isOpen = false;
    for (const ListeningSocket& listening : m_ports->sockets()) {
        if (listening.uid != m_userId)
            continue;
        if (!m_sockets.contains(listening.id))
            m_searched.clear();
        Socket& socket = m_sockets[listening.id];
        socket.port = listening.port;
        socket.isOpen = true;
    }
    m_sockets.removeIf([](const auto& entry) { return !entry->isOpen; });
}

void SessionPorts::search(QList<const ProcSample*> members) {
    members.removeIf([this](const ProcSample* member) {
        return member->uid != m_userId || m_searched.contains(member->pid);
    });
    const auto count = std::min<qsizetype>(searchesPerTick, members.size());
    std::ranges::partial_sort(members, members.begin() + count, std::ranges::greater(),
                              &ProcSample::startTime);
    for (const ProcSample* member : members.first(count)) {
        m_searched.insert(member->pid, member->startTime);
        for (const quint64 id : m_ports->socketsOf(member->pid)) {
            const auto socket = m_sockets.find(id);
            if (socket != m_sockets.end() && !socket->owner)
                socket->owner = member->identity();
        }
    }
}

void SessionPorts::listPorts() {
    m_portsOf.clear();
    for (const Socket& socket : m_sockets) {
        if (!socket.owner)
            continue;
        QList<quint16>& ports = m_portsOf[socket.owner->pid];
        if (!ports.contains(socket.port))
            ports.append(socket.port);
    }
    for (QList<quint16>& ports : m_portsOf)
        std::ranges::sort(ports);
}
