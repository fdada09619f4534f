#pragma once

#include "Platform/Linux/KernelFile.h"
#include "Platform/Linux/PageReclaim.h"
#include "Platform/Linux/ProcFolder.h"
#include "Platform/Linux/ProcStat.h"
#include "Platform/ProcessTable.h"

#include <sys/stat.h>

#include <string>
#include <vector>

/// The processes in procfs without kernel threads.
///
/// For passes over all processes every few seconds. A pass makes at most three system calls per process, the
/// last two on descriptors that stay open from pass to pass:
///   - the process's CPU clock (clock_gettime): nanoseconds, readable for any process;
///   - `/proc/N/statm` (pread): resident and virtual pages. A process that has not run has taken no memory.
///     So this is read where the clock has moved or the kernel takes memory back, and else at every fifth
///     pass: a shared file can shrink, and another process can give pages back for it;
///   - `/proc/N/task` (fstat), where the clock has moved: two links and one per thread. It is opened once the
///     process has run since it was first seen.
/// The last listing is repeated while no PID was assigned and no listed process has gone. A descriptor of a
/// process that is gone fails with ESRCH, and the PID is then opened anew. At the limit on descriptors
/// `/proc/N/stat` is opened, read and closed instead.
class LinuxProcessTable : public ProcessTable {
public:
    /// `root` is the mount point of procfs. Raises the program's soft limit on descriptors to the hard one.
    explicit LinuxProcessTable(const std::string& root = "/proc");

    /// Repeats a process that is gone until a call about it fails.
    int listAllPids(std::span<qint32> pids) override;
    /// Returns an empty optional for a process without address space too, such as a zombie.
    std::optional<TaskInfo> taskInfo(qint32 pid) override;
    /// Reads the target of `/proc/N/exe`, deleted files included and for the user's own processes only,
    /// `/proc/N/cmdline`, and the name in `/proc/N/stat`, at most 15 bytes.
    ProcessOrigin origin(qint32 pid) override;
    /// Reads `/proc/N/stat` and the owner of `/proc/N`, which is the effective user id even where the other
    /// files belong to root (proc(5), "dumpable").
    std::optional<KernelProcessInfo> kernelInfo(qint32 pid) override;
    /// Hashes `/proc/N/comm`, the first 4,096 bytes of `/proc/N/cmdline` and the target of `/proc/N/exe`.
    std::optional<quint64> textHash(qint32 pid) override;
    /// Reads the target of `/proc/N/cwd`, for the user's own processes only.
    QByteArray workingDirectory(qint32 pid) override;
    /// Reads `/proc/N/cgroup` and a service's SYSTEMD_EXEC_PID in `/proc/N/environ` (systemd.exec(5)).
    ProcessKeeper keeper(qint32 pid) override;
    ProcessInheritance inheritance(qint32 pid, const QByteArrayList& variables) override;

private:
    struct Pages {
        quint64 virtualPages = 0;
        quint64 residentPages = 0;
        quint64 anonymousPages = 0;
    };

    struct Process {
        qint32 pid = 0;
        KernelFile statm;
        KernelFile task;
        KernelFile comm;
        KernelFile cmdline;
        quint64 inode = 0;
        bool isKernelThread = false;
        int threads = 0; ///< at cpuTimeNs; 0 before the first pass
        quint64 cpuTimeNs = 0;
        Pages pages; ///< as last read
        int passesSincePages = 0;
        bool wasHashed = false; ///< by `textHash`
    };

    bool hasNewPids();
    void listAnew();
    Process keptOrNew(const ProcFolder::Row& row, std::vector<Process>::iterator& kept);
    Process& processOf(qint32 pid);
    bool isKernelThread(Process& process);
    bool open(Process& process);
    void close(Process& process);
    std::optional<TaskInfo> fromKept(Process& process);
    static std::optional<Pages> pagesOf(const Process& process);
    std::optional<int> threadCount(Process& process);
    std::optional<TaskInfo> fromStat(qint32 pid) const;
    static std::optional<quint64> clockNs(qint32 pid);
    std::optional<quint64> ticksNs(qint32 pid) const;
    std::optional<ProcStat> readStat(qint32 pid) const;
    QByteArray executablePath(qint32 pid) const;
    QByteArray wholeFile(qint32 pid, const char* name) const;
    bool keepTexts(Process& process);
    std::optional<KernelProcessInfo> kernelInfo(qint32 pid, const ProcStat& stat) const;
    KernelFile openFile(qint32 pid, const char* name, int extraFlags = 0) const;
    bool statOf(qint32 pid, const char* name, struct stat& result) const;

    ProcFolder m_folder;
    PageReclaim m_reclaim;
    bool m_isReclaiming = true; ///< in this pass or since the last one
    KernelFile m_loadAverage;
    std::string m_lastPid;            ///< of m_loadAverage at the last call
    std::vector<qint32> m_listed;     ///< of the last listing, without kernel threads
    bool m_hasExited = false;         ///< one of the listed processes
    int m_repeats = 0;                ///< of m_listed
    std::vector<Process> m_processes; ///< by ascending PID
    size_t m_expected = 0;            ///< index of the next process, when asked in order
    qsizetype m_descriptors = 0;      ///< open in m_processes
    qsizetype m_descriptorBudget;
    quint64 m_pageSize;
    quint64 m_tickNs;
};
