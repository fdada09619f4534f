#include "Platform/Linux/LinuxProcessTable.h"

#include "Platform/Linux/DescriptorLimit.h"
#include "Platform/Linux/KernelText.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>

namespace {

constexpr qsizetype descriptorsForTheRest = 64;
constexpr qsizetype commLength = 15;
// Restoring a checkpoint starts processes under chosen ids, which no count of ids tells of.
constexpr int mostRepeats = 15;
constexpr qsizetype mostArguments = 6 * 1024 * 1024; // exec(2) lets no process have more

/// As clock_getcpuclockid(3) makes it, without its call to ask whether the process exists.
clockid_t cpuClockOf(qint32 pid) {
    constexpr clockid_t processWideScheduled = 2;
    return static_cast<clockid_t>(~static_cast<quint32>(pid) << 3) | processWideScheduled;
}

std::chrono::nanoseconds read(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// The instant so many nanoseconds after the boot; now, for one that is still to come.
std::chrono::system_clock::time_point sinceBoot(quint64 ns) {
    const auto uptime = read(CLOCK_BOOTTIME);
    const auto passed = std::min(ns, static_cast<quint64>(uptime.count()));
    return std::chrono::system_clock::time_point(read(CLOCK_REALTIME) - uptime +
                                                 std::chrono::nanoseconds(passed));
}

QByteArray lastComponent(const QByteArray& path) {
    return path.mid(path.lastIndexOf('/') + 1);
}

} // namespace

LinuxProcessTable::LinuxProcessTable(const std::string& root)
    : m_folder(root)
    , m_loadAverage(root + "/loadavg")
    , m_descriptorBudget(DescriptorLimit::raised() - descriptorsForTheRest)
    , m_pageSize(static_cast<quint64>(sysconf(_SC_PAGESIZE)))
    , m_tickNs(1'000'000'000 / static_cast<quint64>(sysconf(_SC_CLK_TCK))) {}

int LinuxProcessTable::listAllPids(std::span<qint32> pids) {
    const bool unchanged = !hasNewPids() && !m_someoneLeft && m_repeats < mostRepeats;
    m_repeats = unchanged ? m_repeats + 1 : 0;
    if (!unchanged) {
        listAnew();
        m_someoneLeft = false;
    }
    const size_t count = std::min(pids.size(), m_listed.size());
    std::copy_n(m_listed.begin(), count, pids.begin());
    return static_cast<int>(count);
}

/// Whether an id has been given out since the last call: the last field of `/proc/loadavg` is the one given
/// out last. True as well when that cannot be read.
bool LinuxProcessTable::hasNewPids() {
    std::array<char, 128> room;
    const auto text = m_loadAverage.read(room);
    const auto newest = text.substr(std::min(text.rfind(' '), text.size()));
    if (!newest.empty() && newest == m_newestPid)
        return false;
    m_newestPid = newest;
    return true;
}

/// Goes through the new rows and the kept processes side by side, both by rising id.
void LinuxProcessTable::listAnew() {
    const auto rows = m_folder.rows();
    std::vector<Process> processes;
    processes.reserve(rows.size());
    m_listed.clear();
    auto kept = m_processes.begin();
    for (const auto& row : rows) {
        processes.push_back(keptOrNew(row, kept));
        if (!processes.back().isKernelThread)
            m_listed.push_back(row.pid);
    }
    for (Process& process : m_processes)
        close(process); // what has not been moved from is not listed any more
    m_processes = std::move(processes);
    m_expected = 0;
}

LinuxProcessTable::Process LinuxProcessTable::keptOrNew(const ProcFolder::Row& row,
                                                        std::vector<Process>::iterator& kept) {
    while (kept != m_processes.end() && kept->pid < row.pid)
        ++kept;
    const bool isKept = kept != m_processes.end() && kept->pid == row.pid;
    Process process = isKept ? std::move(*kept) : Process{.pid = row.pid};
    if (!isKept || (process.isKernelThread && process.inode != row.inode)) {
        process.inode = row.inode;
        process.isKernelThread = isKernelThread(process);
    }
    return process;
}

LinuxProcessTable::Process& LinuxProcessTable::processOf(qint32 pid) {
    if (m_expected >= m_processes.size() || m_processes[m_expected].pid != pid) {
        const auto place =
            std::lower_bound(m_processes.begin(), m_processes.end(), pid,
                             [](const Process& process, qint32 id) { return process.pid < id; });
        m_expected = static_cast<size_t>(place - m_processes.begin());
        if (place == m_processes.end() || place->pid != pid)
            m_processes.insert(place, Process{.pid = pid});
    }
    return m_processes[m_expected++];
}

bool LinuxProcessTable::isKernelThread(Process& process) {
    if (open(process) && fromKept(process))
        return false; // it has memory
    const auto stat = readStat(process.pid);
    const bool kernels = stat && stat->isKernelThread();
    if (kernels)
        close(process);
    return kernels;
}

bool LinuxProcessTable::open(Process& process) {
    if (process.statm.isOpen())
        return true;
    if (m_descriptors + 2 > m_descriptorBudget)
        return false;
    process.statm = openFile(process.pid, "statm");
    process.task = openFile(process.pid, "task", O_DIRECTORY);
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
    auto& process = processOf(pid);
    for (int look = 0; look < 2; ++look) {
        if (!open(process))
            return fromStat(pid);
        if (const auto info = fromKept(process))
            return info;
        if (errno != ESRCH)
            return std::nullopt;
        close(process); // the process is gone, but another may have its id
        m_someoneLeft = true;
    }
    return std::nullopt;
}

/// With errno ESRCH when the process that the descriptors belong to is gone.
std::optional<TaskInfo> LinuxProcessTable::fromKept(Process& process) const {
    errno = 0;
    std::array<char, 128> room;
    auto statm = process.statm.read(room);
    const auto virtualPages = KernelText::takeNumber(statm);
    const auto residentPages = KernelText::takeNumber(statm);
    if (!residentPages || *virtualPages == 0)
        return std::nullopt;
    const auto cpu = cpuTimeNs(process.pid);
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
    return KernelProcessInfo{.start = sinceBoot(stat->startTicks * m_tickNs),
                             .uid = static_cast<quint32>(*effective),
                             .parentPid = stat->parentPid,
                             .startTicks = stat->startTicks};
}
