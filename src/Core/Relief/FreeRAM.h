#pragma once

#include "Core/Sampling/ProcGroup.h"

#include <QList>

/// A process worth ending, as the user is asked about it.
struct FreeRamPreview {
    qint32 pid = 0;
    QString name;
    quint64 rssBytes = 0;
    double idleSeconds = 0;
    ProcGroup group = ProcGroup::other;

    bool operator==(const FreeRamPreview&) const = default;
};

/// What became of one process of a run: it took the signal or is gone; it had to be killed; no signal could
/// be delivered; the system refused for lack of permission.
enum class KillOutcome { quit, forced, ignored, denied };

template <>
inline constexpr std::array rawValueTable<KillOutcome> = {
    RawValueRow<KillOutcome>{KillOutcome::quit, u"quit"},
    RawValueRow<KillOutcome>{KillOutcome::forced, u"forced"},
    RawValueRow<KillOutcome>{KillOutcome::ignored, u"ignored"},
    RawValueRow<KillOutcome>{KillOutcome::denied, u"denied"},
};

struct FreeRAMResult {
    struct Record {
        qint32 pid = 0;
        QString name;       ///< "pid N" for a process that the model did not list
        quint64 before = 0; ///< its resident bytes when the run started, 0 when not listed
        KillOutcome outcome = KillOutcome::quit;

        bool operator==(const Record&) const = default;
    };

    QList<Record> perPid; ///< in the order asked for
    bool memoryPressureSignaled = false;
    quint64 freedBytes = 0; ///< by which the system's used memory went down
};
