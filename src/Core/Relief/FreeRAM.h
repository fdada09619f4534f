#pragma once

#include "Core/Memory/MemoryReturn.h"
#include "Core/Relief/KillOutcome.h"

#include <QList>

/// A process worth ending, as the user is asked about it.
struct FreeRamPreview {
    qint32 pid = 0;
    QString name;
    quint64 rssBytes = 0;
    double idleSeconds = 0;
    ProcGroup group = ProcGroup::other;
    MemoryReturn givesBack; ///< when it ends alone

    bool operator==(const FreeRamPreview&) const = default;
};

struct FreeRAMResult {
    struct Record {
        qint32 pid = 0;
        QString name;       ///< "pid N" for a process that was not listed
        quint64 before = 0; ///< resident bytes at the start, 0 when not listed
        KillOutcome outcome = KillOutcome::quit;

        bool operator==(const Record&) const = default;
    };

    QList<Record> perPid;    ///< in the order of the request
    bool wasStopped = false; ///< before anything was killed; what had not ended has the outcome `ignored`
    bool memoryPressureSignaled = false;
    quint64 freedBytes = 0;     ///< the decrease of the system's used memory
    quint64 freedSwapBytes = 0; ///< the decrease of its used swap
    MemoryReturn promised;      ///< at the start
};
