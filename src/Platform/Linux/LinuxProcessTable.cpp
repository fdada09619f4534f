#include "Platform/Linux/LinuxProcessTable.h"

#include "Platform/Linux/KernelText.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <limits>

namespace {

constexpr qsizetype descriptorsForTheRest = 64;
constexpr qsizetype commLength = 15;
constexpr qsizetype mostArguments = 6 * 1024 * 1024; // exec(2) lets no process have more

/// As clock_getcpuclockid(3) makes it, without its call to ask whether the process exists.
clockid_t cpuClockOf(qint32 pid) {
    constexpr clockid_t processWideScheduled = 2;
    return static_cast<clockid_t>(~static_cast<quint32>(pid) << 3) | processWideScheduled;
}

qsizetype raisedDescriptorLimit() {
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    const auto soft = limit.rlim_cur;
    limit.rlim_cur = limit.rlim_max;
    if (setrlimit(RLIMIT_NOFILE, &limit) != 0)
        limit.rlim_cur = soft;
    return static_cast<qsizetype>(std::min<rlim_t>(limit.rlim_cur, std::numeric_limits<int>::max()));
}

std::chrono::nanoseconds read(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::chrono::nanoseconds bootInstant() {
    return read(CLOCK_REALTIME) - read(CLOCK_BOOTTIME);
}

QByteArray lastComponent(const QByteArray& path) {
    return path.mid(path.lastIndexOf('/') + 1);
}

} // namespace

LinuxProcessTable::LinuxProcessTable(const std::string& root)
    : m_folder(root)
    , m_descriptorBudget(raisedDescriptorLimit() - descriptorsForTheRest)
    , m_pageSize(static_cast<quint64>(sysconf(_SC_PAGESIZE)))
    , m_tickNs(1'000'000'000 / static_cast<quint64>(sysconf(_SC_CLK_TCK))) {}

int LinuxProcessTable::listAllPids(std::span<qint32> pids) {
    ++m_listing;
    size_t count = 0;
    for (const auto& [pid, inode] : m_folder.rows()) {
        if (count == pids.size())
            break;
        auto& process = m_processes[pid];
        const bool isNew = process.listing == 0;
        process.listing = m_listing;
        if (isNew || (process.isKernelThread && process.inode != inode)) {
            process.inode = inode;
            process.isKernelThread = isKernelThread(pid, process);
        }
        if (!process.isKernelThread)
            pids[count++] = pid;
    }
    forgetUnlisted();
    return static_cast<int>(count);
}

bool LinuxProcessTable::isKernelThread(qint32 pid, Process& process) {
    if (open(pid, process) && fromKept(pid, process))
        return false; // it has memory
    const auto stat = readStat(pid);
    const bool kernels = stat && stat->isKernelThread();
    if (kernels)
        close(process);
    return kernels;
}

void LinuxProcessTable::forgetUnlisted() {
    for (auto entry = m_processes.begin(); entry != m_processes.end();) {
        if (entry->second.listing == m_listing) {
            ++entry;
        } else {
            close(entry->second);
            entry = m_processes.erase(entry);
        }
    }
}

bool LinuxProcessTable::open(qint32 pid, Process& process) {
    if (process.statm.isOpen())
        return true;
    if (m_descriptors + 2 > m_descriptorBudget)
        return false;
    process.statm = openFile(pid, "statm");
    process.task = openFile(pid, "task", O_DIRECTORY);
    if (!process.statm.isOpen() || !process.task.isOpen()) {
        process.statm.close();
        process.task.close();
        return false;
    }
    m_descriptors += 2;
    return true;
}

void LinuxProcessTable::close(Process& process) {
    if (!process.statm.isOpen())
        return;
    process.statm.close();
    process.task.close();
    process.threads = 0;
    m_descriptors -= 2;
}

std::optional<TaskInfo> LinuxProcessTable::taskInfo(qint32 pid) {
    auto& process = m_processes[pid];
    for (int look = 0; look < 2; ++look) {
        if (!open(pid, process))
            return fromStat(pid);
        if (const auto info = fromKept(pid, process))
            return info;
        if (errno != ESRCH)
            return std::nullopt;
        close(process); // the process is gone, but another may have its id
    }
    return std::nullopt;
}

/// With errno ESRCH when the process that the descriptors belong to is gone.
std::optional<TaskInfo> LinuxProcessTable::fromKept(qint32 pid, Process& process) const {
    errno = 0;
    std::array<char, 128> room;
    auto statm = process.statm.read(room);
    const auto virtualPages = KernelText::takeNumber(statm);
    const auto residentPages = KernelText::takeNumber(statm);
    if (!residentPages || *virtualPages == 0)
        return std::nullopt;
    const auto cpu = cpuTimeNs(pid);
    if (!cpu)
        return std::nullopt;
    // No thread has begun or ended in a process that has not run for a nanosecond.
    if (process.threads == 0 || process.cpuTimeNs != *cpu) {
        struct stat task;
        if (fstat(process.task.descriptor(), &task) != 0)
            return std::nullopt;
        process.threads = std::max(0, static_cast<int>(task.st_nlink) - 2);
        process.cpuTimeNs = *cpu;
    }
    return TaskInfo{.virtualBytes = *virtualPages * m_pageSize,
                    .residentBytes = *residentPages * m_pageSize,
                    .cpuTimeNs = *cpu,
                    .threads = process.threads};
}

std::optional<TaskInfo> LinuxProcessTable::fromStat(qint32 pid) const {
    const auto stat = readStat(pid);
    if (!stat || stat->virtualBytes == 0)
        return std::nullopt;
    return TaskInfo{.virtualBytes = stat->virtualBytes,
                    .residentBytes = stat->residentPages * m_pageSize,
                    .cpuTimeNs = cpuTimeNs(pid).value_or(stat->cpuTicks * m_tickNs),
                    .threads = stat->threads};
}

std::optional<quint64> LinuxProcessTable::cpuTimeNs(qint32 pid) const {
    timespec time;
    if (clock_gettime(cpuClockOf(pid), &time) == 0)
        return static_cast<quint64>(time.tv_sec) * 1'000'000'000 + static_cast<quint64>(time.tv_nsec);
    const auto stat = readStat(pid);
    return stat ? std::optional(stat->cpuTicks * m_tickNs) : std::nullopt;
}

std::optional<ProcStat> LinuxProcessTable::readStat(qint32 pid) const {
    const auto file = openFile(pid, "stat");
    std::array<char, 1024> room;
    return ProcStat::parse(file.read(room));
}

KernelFile LinuxProcessTable::openFile(qint32 pid, const char* name, int extraFlags) const {
    std::array<char, 32> path;
    std::snprintf(path.data(), path.size(), "%d/%s", pid, name);
    return KernelFile(m_folder.descriptor(), path.data(), extraFlags);
}

QByteArray LinuxProcessTable::executablePath(qint32 pid) {
    std::array<char, 32> path;
    std::snprintf(path.data(), path.size(), "%d/exe", pid);
    QByteArray target(4096, Qt::Uninitialized);
    const auto length = readlinkat(m_folder.descriptor(), path.data(), target.data(), target.size());
    target.truncate(std::max<qsizetype>(length, 0));
    if (target.endsWith(" (deleted)"))
        target.chop(sizeof(" (deleted)") - 1);
    return target;
}

QByteArray LinuxProcessTable::shortName(qint32 pid) {
    std::array<char, 64> room;
    auto text = openFile(pid, "comm").read(room);
    if (text.ends_with('\n'))
        text.remove_suffix(1);
    const QByteArray name(text.data(), static_cast<qsizetype>(text.size()));
    if (name.size() != commLength)
        return name;
    if (const auto whole = lastComponent(executablePath(pid)); whole.startsWith(name))
        return whole;
    const auto arguments = argumentArea(pid);
    const auto whole = lastComponent(arguments.left(std::max<qsizetype>(arguments.indexOf('\0'), 0)));
    return whole.startsWith(name) ? whole : name;
}

QByteArray LinuxProcessTable::argumentArea(qint32 pid) {
    const auto file = openFile(pid, "cmdline");
    QByteArray area(4096, Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < mostArguments) {
        const auto length = pread(file.descriptor(), area.data() + filled, area.size() - filled, filled);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            break;
        filled += length;
        if (filled == area.size())
            area.resize(2 * area.size());
    }
    area.truncate(filled);
    return area;
}

std::optional<KernelProcessInfo> LinuxProcessTable::kernelInfo(qint32 pid) {
    const auto stat = readStat(pid);
    std::array<char, 4096> room;
    const auto status = openFile(pid, "status").read(room);
    auto ids = KernelText::valueOf(status, "Uid:");
    if (!stat || !ids)
        return std::nullopt;
    KernelText::takeNumber(*ids); // the real one
    const auto effective = KernelText::takeNumber(*ids);
    if (!effective)
        return std::nullopt;
    const auto start = bootInstant() + std::chrono::nanoseconds(stat->startTicks * m_tickNs);
    return KernelProcessInfo{.start = std::chrono::system_clock::time_point(start),
                             .uid = static_cast<quint32>(*effective),
                             .parentPid = stat->parentPid};
}
