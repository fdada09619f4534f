#pragma once

#include "Platform/Linux/KernelFile.h"
#include "Platform/Linux/ProcFolder.h"
#include "Platform/Linux/ProcStat.h"
#include "Platform/ProcessTable.h"

#include <sys/stat.h>

#include <string>
#include <vector>

/// The processes that procfs shows, kernel threads left out.
///
/// Made to be asked about every process every few seconds: for each it asks at most three questions a pass,
/// the first and the last on descriptors that it keeps from pass to pass:
///   - `/proc/N/statm` (pread): resident and virtual pages;
///   - the process's CPU clock (clock_gettime): nanoseconds, readable for any process;
///   - `/proc/N/task` (fstat), where the clock has moved: two links and one for each thread. A process that
///     has slept since it was first seen has no descriptor for it yet.
/// The listing itself is repeated from memory while no id has been given out and no listed process has gone.
/// Such a descriptor never speaks for another process: once its own is gone it answers ESRCH, and the id is
/// looked up anew. Where the limit on descriptors is reached, `/proc/N/stat` answers instead, opened each
/// time.
class LinuxProcessTable : public ProcessTable {
public:
    /// `root` is where procfs is mounted. Raises the program's soft limit on descriptors to the hard one.
    explicit LinuxProcessTable(const std::string& root = "/proc");

    /// A process that has gone may be listed once more, until a question about it finds out.
    int listAllPids(std::span<qint32> pids) override;
    /// Empty also for a process without address space, such as one that waits to be reaped.
    std::optional<TaskInfo> taskInfo(qint32 pid) override;
    /// The executable is the target of `/proc/N/exe`, also when the file has been deleted since; readable for
    /// the user's own processes only. The arguments are `/proc/N/cmdline`. The short name, in `/proc/N/stat`,
    /// is of 15 bytes at most.
    ProcessOrigin origin(qint32 pid) override;
    /// `/proc/N/stat`, and the owner of `/proc/N`, which is the effective user id also for a process whose
    /// other files belong to root (proc(5), "dumpable").
    std::optional<KernelProcessInfo> kernelInfo(qint32 pid) override;
    /// Of `/proc/N/comm`, the first 4,096 bytes of `/proc/N/cmdline` and the target of `/proc/N/exe`. The
    /// first two stay open for a process that is asked about again.
    std::optional<quint64> textMark(qint32 pid) override;
    /// The target of `/proc/N/cwd`; readable for the user's own processes only.
    QByteArray workingFolder(qint32 pid) override;
    /// From `/proc/N/cgroup`, and for a service SYSTEMD_EXEC_PID in `/proc/N/environ` (systemd.exec(5)).
    ProcessKeeper keeper(qint32 pid) override;

private:
    struct Process {
        qint32 pid = 0;
        KernelFile statm;
        KernelFile task;
        KernelFile comm;
        KernelFile cmdline;
        quint64 inode = 0;
        bool isKernelThread = false;
        int threads = 0; ///< when its clock stood at cpuTimeNs; 0 before the first look
        quint64 cpuTimeNs = 0;
        bool wasMarked = false; ///< its text mark has been asked for
    };

    struct Pages {
        quint64 virtualPages = 0;
        quint64 residentPages = 0;
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
    std::optional<quint64> cpuTimeNs(qint32 pid) const;
    std::optional<ProcStat> readStat(qint32 pid) const;
    QByteArray executablePath(qint32 pid) const;
    QByteArray wholeFile(qint32 pid, const char* name) const;
    bool keepTexts(Process& process);
    std::optional<KernelProcessInfo> kernelInfo(qint32 pid, const ProcStat& stat) const;
    KernelFile openFile(qint32 pid, const char* name, int extraFlags = 0) const;
    bool statOf(qint32 pid, const char* name, struct stat& result) const;

    ProcFolder m_folder;
    KernelFile m_loadAverage;
    std::string m_newestPid;          ///< as m_loadAverage had it at the last call
    std::vector<qint32> m_listed;     ///< by the last listing, kernel threads left out
    bool m_someoneLeft = false;       ///< since then
    int m_repeats = 0;                ///< how often m_listed has been given again
    std::vector<Process> m_processes; ///< by rising id, as procfs lists them
    size_t m_expected = 0;            ///< where the next question will look, if asked in that order
    qsizetype m_descriptors = 0;      ///< kept open in m_processes
    qsizetype m_descriptorBudget;
    quint64 m_pageSize;
    quint64 m_tickNs;
};
