#pragma once

#include "Platform/Linux/KernelFile.h"

#include <QByteArray>

#include <optional>
#include <string_view>

/// The fields of `/proc/N/stat` (proc(5)) in use.
struct ProcStat {
    QByteArray name; ///< as in `/proc/N/comm`
    qint32 parentPid = 0;
    qint32 session = 0;   ///< PID of the session leader
    qint32 terminal = 0;  ///< device number of the controlling terminal; 0 for none
    quint32 flags = 0;    ///< the kernel's PF_ bits
    quint64 cpuTicks = 0; ///< utime + stime, in clock ticks
    int threads = 0;
    quint64 startTicks = 0; ///< since boot, in clock ticks
    quint64 virtualBytes = 0;
    quint64 residentPages = 0;

    bool isKernelThread() const { return (flags & 0x0020'0000) != 0; } // PF_KTHREAD

    /// Returns an empty optional for a text that is malformed or cut short.
    static std::optional<ProcStat> parse(std::string_view text);
    static std::optional<ProcStat> read(const KernelFile& file);
};
