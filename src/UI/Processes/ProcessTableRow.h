#pragma once

#include "Core/Memory/SummedMemory.h"

#include <QList>

/// One row of the flat or the grouped table: one process, or all of one name.
struct ProcessTableRow {
    ProcSample first;                 ///< the process, or the first of the name
    QList<ProcSample> processes = {}; ///< empty for one process
    SummedMemory memory = {};         ///< of all of the name
    double cpuPercent = 0;
    int sameName = 1; ///< the number of processes of that name: on the machine, or in the row
};
