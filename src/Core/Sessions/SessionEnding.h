#pragma once

#include "Core/Memory/MemoryReturn.h"
#include "Core/Relief/KillOutcome.h"
#include "Core/Sampling/ProcSample.h"

#include <QList>

#include <optional>

/// Processes that end together, as the user is asked about them.
struct SessionEnding {
    QString title; ///< in English, for the log: "claude in ~/src/app", "left-overs", "duplicates"
    std::optional<ProcessIdentity> host; ///< asked first and given time to save
    QList<ProcSample> processes;         ///< all of them, the host first
    QList<ProcessIdentity> owners;       ///< the hosts of the running sessions that they belong to
    MemoryReturn givesBack;
    QString resumeCommand; ///< empty where there is none

    bool operator==(const SessionEnding&) const = default;
};

/// How a session ended.
struct SessionEndResult {
    struct Record {
        qint32 pid = 0;
        QString name;
        std::optional<KillOutcome> outcome; ///< empty for a process that belonged to something else meanwhile

        bool operator==(const Record&) const = default;
    };

    QString title;
    QList<Record> records; ///< in the order of the request
    MemoryReturn promised;
    quint64 freedBytes = 0;     ///< the decrease of the system's used memory
    quint64 freedSwapBytes = 0; ///< the decrease of its used swap
    QString resumeCommand;

    qsizetype endedCount() const;
};
