#include "Core/Inspection/ProcessFacts.h"

#include "Core/Inspection/ProcessInspection.h"
#include "Core/OnThread.h"
#include "Platform/Applications.h"
#include "Platform/Clock.h"
#include "Platform/Identity.h"
#include "Platform/ListeningPorts.h"
#include "Platform/Platform.h"
#include "Platform/ProcessDetails.h"

#include <QPointer>

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds leastDiskInterval(900); // a period of a second comes a little early

} // namespace

ProcessFacts::ProcessFacts(const Platform& platform)
    : m_details(platform.processDetails)
    , m_ports(platform.listeningPorts)
    , m_applications(platform.applications)
    , m_identity(platform.identity)
    , m_clock(platform.clock) {}

void ProcessFacts::wantDisk(const QList<ProcSample>& processes) {
    const Uptime now = m_clock->uptime();
    if (m_readsDisk || (m_diskAskedAt && now - *m_diskAskedAt < leastDiskInterval))
        return;
    QList<ProcessIdentity> own;
    for (const ProcSample& process : processes) {
        if (process.uid == m_identity->userId())
            own.append(process.identity());
    }
    if (own.isEmpty())
        return;
    m_diskAskedAt = now;
    readDisk(own);
}

QCoro::Task<> ProcessFacts::readDisk(QList<ProcessIdentity> processes) {
    m_readsDisk = true;
    const QPointer<ProcessFacts> self(this);
    const Uptime at = m_clock->uptime();
    std::function<QList<std::optional<DiskCounters>>()> read = [details = m_details, processes] {
        QList<std::optional<DiskCounters>> counters;
        for (const ProcessIdentity& process : processes)
            counters.append(details->disk(process.pid));
        return counters;
    };
    const auto counters = co_await onThread<QList<std::optional<DiskCounters>>>(read);
    if (!self)
        co_return;
    m_readsDisk = false;
    if (counters)
        takeOver(processes, *counters, at);
}

void ProcessFacts::takeOver(const QList<ProcessIdentity>& processes,
                            const QList<std::optional<DiskCounters>>& counters, Uptime at) {
    QHash<qint32, Disk> disks;
    for (qsizetype i = 0; i < processes.size(); ++i) {
        const ProcessIdentity& process = processes[i];
        if (!counters[i])
            continue;
        Disk disk{.startTime = process.startTime,
                  .rate = {},
                  .readBytes = counters[i]->readBytes,
                  .writtenBytes = counters[i]->writtenBytes,
                  .readAt = at};
        const auto last = m_disks.constFind(process.pid);
        const double seconds =
            last == m_disks.cend() ? 0 : std::chrono::duration<double>(at - last->readAt).count();
        if (seconds > 0 && last->startTime == process.startTime && disk.readBytes >= last->readBytes &&
            disk.writtenBytes >= last->writtenBytes)
            disk.rate = DiskRate{static_cast<double>(disk.readBytes - last->readBytes) / seconds,
                                 static_cast<double>(disk.writtenBytes - last->writtenBytes) / seconds};
        disks.insert(process.pid, disk);
    }
    publish(m_disks, disks);
}

std::optional<DiskRate> ProcessFacts::diskRate(const ProcSample& process) const {
    const auto found = m_disks.constFind(process.pid);
    return found != m_disks.cend() && found->startTime == process.startTime ? found->rate : std::nullopt;
}

QString ProcessFacts::userName(quint32 uid) {
    const auto known = m_userNames.constFind(uid);
    if (known != m_userNames.cend())
        return *known;
    const QString number = QString::number(uid);
    m_userNames.insert(uid, number);
    askUserName(uid);
    return number;
}

/// Asks on a thread, because a directory of users may be on the network.
QCoro::Task<> ProcessFacts::askUserName(quint32 uid) {
    const QPointer<ProcessFacts> self(this);
    std::function<QString()> ask = [details = m_details, uid] { return details->userName(uid); };
    const auto name = co_await onThread<QString>(ask);
    if (!self || !name || name->isEmpty())
        co_return;
    publish(m_userNames[uid], *name);
}

void ProcessFacts::wantListeners(quint16 port, const QList<ProcSample>& processes) {
    if (m_seeksListeners)
        return;
    QSet<quint64> sockets;
    for (const ListeningSocket& socket : m_ports->sockets()) {
        if (socket.port == port)
            sockets.insert(socket.id);
    }
    QList<qint32> pids;
    bool isKnown = port == m_listenedPort && sockets == m_listenedSockets;
    QSet<qint32> gone = m_listeners;
    for (const ProcSample& process : processes) {
        pids.append(process.pid);
        gone.remove(process.pid);
    }
    isKnown = isKnown && gone.isEmpty(); // a child may have inherited the socket of a process that ended
    if (!isKnown)
        findListeners(port, sockets, pids);
}

QCoro::Task<> ProcessFacts::findListeners(quint16 port, QSet<quint64> sockets, QList<qint32> pids) {
    m_seeksListeners = true;
    const QPointer<ProcessFacts> self(this);
    std::function<QSet<qint32>()> search = [ports = m_ports, sockets, pids] {
        QSet<qint32> found;
        if (sockets.isEmpty())
            return found;
        for (const qint32 pid : pids) {
            const QList<quint64> open = ports->socketsOf(pid);
            if (std::ranges::any_of(open, [&sockets](quint64 id) { return sockets.contains(id); }))
                found.insert(pid);
        }
        return found;
    };
    const auto found = co_await onThread<QSet<qint32>>(search);
    if (!self)
        co_return;
    m_seeksListeners = false;
    m_listenedPort = port;
    m_listenedSockets = sockets;
    publish(m_listeners, found.value_or(QSet<qint32>()));
}

QCoro::Task<std::optional<ProcessInspection>> ProcessFacts::inspect(qint32 pid) const {
    const QList<ListeningSocket> listening = m_ports->sockets();
    std::function<ProcessInspection()> look = [details = m_details, ports = m_ports, listening, pid] {
        return ProcessInspection::read(*details, *ports, listening, pid);
    };
    return onThread<ProcessInspection>(look);
}

std::optional<Application> ProcessFacts::application(qint32 pid) const {
    return m_applications->ofProcess(pid);
}

QCoro::Task<std::optional<QList<EnvironmentVariable>>> ProcessFacts::environment(qint32 pid) const {
    std::function<std::optional<QByteArrayList>()> ask = [details = m_details, pid] {
        return details->environment(pid);
    };
    const auto entries = co_await onThread<std::optional<QByteArrayList>>(ask);
    if (!entries || !*entries)
        co_return std::nullopt;
    QList<EnvironmentVariable> variables;
    for (const QByteArray& entry : **entries)
        variables.append(EnvironmentVariable::of(entry));
    co_return variables;
}
