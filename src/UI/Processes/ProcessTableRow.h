#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

/// One row of either table: a process by itself, or all of one name.
struct ProcessTableRow {
    ProcSample first;            ///< the process, or the first of the name
    QList<ProcSample> processes; ///< empty for a process by itself
    quint64 rssBytes = 0;
    double cpuPercent = 0;
    int sameName = 1; ///< how many processes of the machine have the name
};
