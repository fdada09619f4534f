#include "Platform/Linux/LinuxProcessTable.h"

#include "Platform/Linux/ControlGroup.h"
#include "Platform/Linux/Environment.h"
#include "Platform/Linux/KernelText.h"
#include "Platform/Log.h"
#include "Platform/Unix/DescriptorLimit.h"

#include <QHash>

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>

namespace {

constexpr qsizetype descriptorsForTheRest = 128; // a scan of the caches alone takes 30 at once
constexpr qsizetype hashedBytes = 4096;
// Restoring a checkpoint starts processes under chosen PIDs, which leave the last PID unchanged.
constexpr int maxRepeats = 15;
constexpr int passesPerReading = 5; // of the pages of a process that sleeps, as the header says
constexpr qsizetype maxArguments = 6 * 1024 * 1024; // the limit of exec(2)

/// Makes the clock id as clock_getcpuclockid(3) does, without its system call.
clockid_t cpuClockOf(qint32 pid) {
    constexpr clockid_t processWideScheduled = 2;
    return static_cast<clockid_t>(~static_cast<quint32>(pid) << 3) | processWideScheduled;
}

std::chrono::nanoseconds read(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Returns the time `ns` after boot, not later than now.
std::chrono::system_clock::time_point sinceBoot(quint64 ns) {
    const auto uptime = read(CLOCK_BOOTTIME);
    const auto passed = std::min(ns, static_cast<quint64>(uptime.count()));
    return std::chrono::system_clock::time_point(read(CLOCK_REALTIME) - uptime +
                                                 std::chrono::nanoseconds(passed));
}

/// Makes a path relative to the mount point of procfs; `name` is empty or begins with a slash.
std::array<char, 32> pathOf(qint32 pid, const char* name) {
    std::array<char, 32> path;
    std::snprintf(path.data(), path.size(), "%d%s", pid, name);
    return path;
}

/// Hashes the beginning of the arguments only: exec(2) and new titles change it.
quint64 hashOf(QByteArrayView name, QByteArrayView arguments, QByteArrayView executable) {
    return qHashMulti(0, name, arguments.first(std::min(arguments.size(), hashedBytes)), executable);
}

} // namespace

LinuxProcessTable::LinuxProcessTable(const std::string& root)
    : m_folder(root)
    , m_reclaim(root)
    , m_loadAverage(root + "/loadavg")
    , m_descriptorBudget(DescriptorLimit::raised() - descriptorsForTheRest)
    , m_pageSize(static_cast<quint64>(sysconf(_SC_PAGESIZE)))
    , m_tickNs(1'000'000'000 / static_cast<quint64>(sysconf(_SC_CLK_TCK))) {}

int LinuxProcessTable::listAllPids(std::span<qint32> pids) {
    const bool unchanged = !hasNewPids() && !m_hasExited && m_repeats < maxRepeats;
    m_repeats = unchanged ? m_repeats + 1 : 0;
    m_isReclaiming = m_reclaim.hasWorked();
    if (!unchanged) {
        listAnew();
        m_hasExited = false;
    }
    const size_t count = std::min(pids.size(), m_listed.size());
    std::copy_n(m_listed.begin(), count, pids.begin());
    return static_cast<int>(count);
}

/// Returns whether a PID was assigned since the last call, by the last PID in `/proc/loadavg`. Returns true
/// when that is unreadable.
bool LinuxProcessTable::hasNewPids() {
    std::array<char, 128> buffer;
    const auto text = m_loadAverage.read(buffer);
    const auto newest = text.substr(std::min(text.rfind(' '), text.size()));
    if (!newest.empty() && newest == m_lastPid)
        return false;
    m_lastPid = newest;
    return true;
}

/// Merges the new rows with the kept processes, both by ascending PID.
void LinuxProcessTable::listAnew() {
    const auto rows = m_folder.rows();
    if (rows.empty())
        qCWarning(Log::platform) << "no process is listed";
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
        close(process); // those not moved from are no longer listed
    m_processes = std::move(processes);
    m_expected = 0;
}

LinuxProcessTable::Process LinuxProcessTable::keptOrNew(const ProcFolder::Row& row,
                                                        std::vector<Process>::iterator& kept) {
    while (kept != m_processes.end() && kept->pid < row.pid)
        ++kept;
    const bool isKept = kept != m_processes.end() && kept->pid == row.pid;
    // Not all in the same pass.
    Process process =
        isKept ? std::move(*kept) : Process{.pid = row.pid, .passesSincePages = row.pid % passesPerReading};
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
    if (open(process) && pagesOf(process))
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
    if (m_descriptors >= m_descriptorBudget)
        return false;
    process.statm = openFile(process.pid, "/statm");
    m_descriptors += process.statm.isOpen() ? 1 : 0;
    return process.statm.isOpen();
}

void LinuxProcessTable::close(Process& process) {
    for (KernelFile* file : {&process.statm, &process.task, &process.comm, &process.cmdline}) {
        m_descriptors -= file->isOpen() ? 1 : 0;
        file->close();
    }
    process.threads = 0;
    process.wasHashed = false;
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
        close(process); // the process is gone, but another may have its PID
        m_hasExited = true;
    }
    return std::nullopt;
}

/// Sets errno to ESRCH when the process of the descriptors is gone.
std::optional<TaskInfo> LinuxProcessTable::fromKept(Process& process) {
    auto cpu = clockNs(process.pid);
    const bool hasRun = process.threads == 0 || process.cpuTimeNs != cpu;
    if (hasRun || m_isReclaiming || ++process.passesSincePages >= passesPerReading) {
        const auto pages = pagesOf(process);
        if (!pages)
            return std::nullopt;
        process.pages = *pages;
        process.passesSincePages = 0;
    }
    if (!cpu)
        cpu = ticksNs(process.pid);
    if (!cpu)
        return std::nullopt;
    if (hasRun) { // else it has started and ended no thread
        const auto threads = threadCount(process);
        if (!threads)
            return std::nullopt;
        process.threads = *threads;
        process.cpuTimeNs = *cpu;
    }
    return TaskInfo{.virtualBytes = process.pages.virtualPages * m_pageSize,
                    .residentBytes = process.pages.residentPages * m_pageSize,
                    .anonymousBytes = process.pages.anonymousPages * m_pageSize,
                    .cpuTimeNs = *cpu,
                    .threads = process.threads};
}

/// Returns an empty optional with errno 0 for a process without memory.
std::optional<LinuxProcessTable::Pages> LinuxProcessTable::pagesOf(const Process& process) {
    errno = 0;
    std::array<char, 128> buffer;
    auto statm = process.statm.read(buffer);
    const auto virtualPages = KernelText::takeNumber(statm);
    const auto residentPages = KernelText::takeNumber(statm);
    const auto backedPages = KernelText::takeNumber(statm);
    if (!backedPages || *virtualPages == 0)
        return std::nullopt;
    return Pages{*virtualPages, *residentPages, *residentPages - std::min(*residentPages, *backedPages)};
}

/// Opens no descriptor at first: most processes sleep all the time and are not asked again.
std::optional<int> LinuxProcessTable::threadCount(Process& process) {
    struct stat task;
    if (process.threads > 0 && !process.task.isOpen() && m_descriptors < m_descriptorBudget) {
        process.task = openFile(process.pid, "/task", O_DIRECTORY);
        m_descriptors += process.task.isOpen() ? 1 : 0;
    }
    const bool answered = process.task.isOpen() ? fstat(process.task.descriptor(), &task) == 0
                                                : statOf(process.pid, "/task", task);
    return answered ? std::optional(std::max(0, static_cast<int>(task.st_nlink) - 2)) : std::nullopt;
}

std::optional<TaskInfo> LinuxProcessTable::fromStat(qint32 pid) const {
    const auto stat = readStat(pid);
    if (!stat || stat->virtualBytes == 0)
        return std::nullopt;
    return TaskInfo{.virtualBytes = stat->virtualBytes,
                    .residentBytes = stat->residentPages * m_pageSize,
                    .cpuTimeNs = clockNs(pid).value_or(stat->cpuTicks * m_tickNs),
                    .threads = stat->threads};
}

/// Returns the time of the process's clock; nothing where it has none.
std::optional<quint64> LinuxProcessTable::clockNs(qint32 pid) {
    timespec time;
    if (clock_gettime(cpuClockOf(pid), &time) != 0)
        return std::nullopt;
    return static_cast<quint64>(time.tv_sec) * 1'000'000'000 + static_cast<quint64>(time.tv_nsec);
}

/// Returns the same in steps of a tick.
std::optional<quint64> LinuxProcessTable::ticksNs(qint32 pid) const {
    const auto stat = readStat(pid);
    return stat ? std::optional(stat->cpuTicks * m_tickNs) : std::nullopt;
}

std::optional<ProcStat> LinuxProcessTable::readStat(qint32 pid) const {
    return ProcStat::read(openFile(pid, "/stat"));
}

KernelFile LinuxProcessTable::openFile(qint32 pid, const char* name, int extraFlags) const {
    return KernelFile(m_folder.descriptor(), pathOf(pid, name).data(), extraFlags);
}

/// Calls stat(2) on `/proc/N` followed by `name`. Returns false on failure.
bool LinuxProcessTable::statOf(qint32 pid, const char* name, struct stat& result) const {
    return fstatat(m_folder.descriptor(), pathOf(pid, name).data(), &result, 0) == 0;
}

ProcessOrigin LinuxProcessTable::origin(qint32 pid) {
    ProcessOrigin origin{.executablePath = executablePath(pid), .argumentArea = wholeFile(pid, "/cmdline")};
    if (const auto stat = readStat(pid)) {
        origin.shortName = stat->name;
        origin.kernelInfo = kernelInfo(pid, *stat);
    }
    origin.textHash = hashOf(origin.shortName, origin.argumentArea, origin.executablePath);
    return origin;
}

/// Returns whether both files are open. They are kept open from the second question on, which only processes
/// that run often get.
bool LinuxProcessTable::keepTexts(Process& process) {
    if (!process.cmdline.isOpen() && process.wasHashed && m_descriptors + 2 <= m_descriptorBudget) {
        process.comm = openFile(process.pid, "/comm");
        process.cmdline = openFile(process.pid, "/cmdline");
        m_descriptors += (process.comm.isOpen() ? 1 : 0) + (process.cmdline.isOpen() ? 1 : 0);
    }
    process.wasHashed = true;
    return process.comm.isOpen() && process.cmdline.isOpen();
}

std::optional<quint64> LinuxProcessTable::textHash(qint32 pid) {
    Process& process = processOf(pid);
    const bool isKept = keepTexts(process);
    const KernelFile openedComm = isKept ? KernelFile() : openFile(pid, "/comm");
    const KernelFile openedCmdline = isKept ? KernelFile() : openFile(pid, "/cmdline");
    std::array<char, 64> nameRoom;
    std::array<char, hashedBytes> argumentRoom;
    auto name = (isKept ? process.comm : openedComm).read(nameRoom);
    const auto arguments = (isKept ? process.cmdline : openedCmdline).read(argumentRoom);
    if (name.empty())
        return std::nullopt;
    name.remove_suffix(1); // a line feed
    return hashOf(QByteArrayView(name.data(), static_cast<qsizetype>(name.size())),
                  QByteArrayView(arguments.data(), static_cast<qsizetype>(arguments.size())),
                  executablePath(pid));
}

QByteArray LinuxProcessTable::workingDirectory(qint32 pid) {
    return KernelFile::symlinkTarget(m_folder.descriptor(), pathOf(pid, "/cwd").data());
}

ProcessKeeper LinuxProcessTable::keeper(qint32 pid) {
    ProcessKeeper keeper = ControlGroup::keeper(wholeFile(pid, "/cgroup"));
    const bool isOurs = keeper == ControlGroup::keeper(wholeFile(getpid(), "/cgroup"));
    if (isOurs && keeper.kind == ProcessKeeper::Kind::container)
        return {}; // this program runs in it as well
    if (keeper.kind == ProcessKeeper::Kind::service)
        keeper.mainPid = ControlGroup::mainPid(wholeFile(pid, "/environ"));
    return keeper;
}

ProcessInheritance LinuxProcessTable::inheritance(qint32 pid, const QByteArrayList& variables) {
    const auto stat = readStat(pid);
    return {.sessionLeader = stat ? stat->session : 0,
            .controlGroup = ControlGroup::path(wholeFile(pid, "/cgroup")),
            .variables = Environment::variables(wholeFile(pid, "/environ"), variables)};
}

QByteArray LinuxProcessTable::executablePath(qint32 pid) const {
    return KernelFile::programBehind(m_folder.descriptor(), pathOf(pid, "/exe").data());
}

/// Reads a file of any length. Returns an empty text when it is unreadable.
QByteArray LinuxProcessTable::wholeFile(qint32 pid, const char* name) const {
    const auto file = openFile(pid, name);
    QByteArray area(4096, Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < maxArguments) {
        const auto length = pread(file.descriptor(), area.data() + filled, area.size() - filled, filled);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            break;
        filled += length;
        if (filled < area.size())
            break; // short reads occur at the end only
        area.resize(2 * area.size());
    }
    area.truncate(filled);
    return area;
}

std::optional<KernelProcessInfo> LinuxProcessTable::kernelInfo(qint32 pid) {
    const auto stat = readStat(pid);
    return stat ? kernelInfo(pid, *stat) : std::nullopt;
}

std::optional<KernelProcessInfo> LinuxProcessTable::kernelInfo(qint32 pid, const ProcStat& stat) const {
    struct stat folder;
    if (!statOf(pid, "", folder))
        return std::nullopt;
    return KernelProcessInfo{.start = sinceBoot(stat.startTicks * m_tickNs),
                             .uid = folder.st_uid,
                             .parentPid = stat.parentPid,
                             .startTicks = stat.startTicks};
}
