#pragma once

#include "Platform/Linux/KernelFile.h"

#include <QByteArray>

#include <optional>
#include <string_view>

/// The fields of `/proc/N/stat` (proc(5)) that the process table uses.
struct ProcStat {
    QByteArray name; ///< as in `/proc/N/comm`
    qint32 parentPid = 0;
    qint32 session = 0;   ///< the id of the process that leads it
    qint32 terminal = 0;  ///< the controlling terminal's device number; 0 for none
    quint32 flags = 0;    ///< the kernel's PF_ bits
    quint64 cpuTicks = 0; ///< utime + stime, in clock ticks
    int threads = 0;
    quint64 startTicks = 0; ///< since boot, in clock ticks
    quint64 virtualBytes = 0;
    quint64 residentPages = 0;

    /// Kernel threads are part of the kernel; they have no program, memory or owner of their own.
    bool isKernelThread() const { return (flags & 0x0020'0000) != 0; }

    /// Empty when the text is not such a line, or is cut short.
    static std::optional<ProcStat> parse(std::string_view text);
    /// The same of such a file.
    static std::optional<ProcStat> read(const KernelFile& file);
};
