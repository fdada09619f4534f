#pragma once

#include "Core/Instant.h"
#include "Core/Sampling/ProcGroup.h"
#include "Platform/ProcessTable.h"

#include <QString>

#include <memory>
#include <optional>

struct MemoryFigures;

/// Identifies one process for good: another process may reuse its PID, but not with its start.
struct ProcessIdentity {
    qint32 pid = 0;
    Instant startTime;

    bool operator==(const ProcessIdentity&) const = default;
};

/// One process in one sampling pass. Sizes are bytes; 100 % is one core.
struct ProcSample {
    qint32 pid = 0;
    qint32 parentPid = 0; ///< 0 when unknown
    quint32 uid = 0;      ///< effective user id, 0 when unknown
    QString name;
    QString executablePath; ///< empty when unreadable
    QString arguments;      ///< joined by single spaces
    double cpuPercent = 0;
    quint64 rssBytes = 0;
    std::optional<quint64> anonymousBytes; ///< the part of these that no file or shared memory backs
    quint64 virtualBytes = 0;
    int threads = 0;
    Instant startTime;
    double idleSeconds = 0; ///< since it last used more than 0.5 % CPU
    ProcGroup group = ProcGroup::other;
    std::shared_ptr<const MemoryFigures> memory; ///< null while the ledger has not read them
    QString program; ///< the executable, or the script, module, package or image that it was told to run

    ProcessIdentity identity() const { return {pid, startTime}; }
    /// Sets the figures that the system counts.
    void setFigures(const TaskInfo& task) {
        rssBytes = task.residentBytes;
        anonymousBytes = task.anonymousBytes;
        virtualBytes = task.virtualBytes;
        threads = task.threads;
    }
    bool operator==(const ProcSample&) const = default;
};
