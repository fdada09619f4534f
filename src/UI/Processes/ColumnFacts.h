#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QHash>
#include <QString>

class ProcessFacts;

/// What columns show beyond the record of a process. A table is filled while a column that needs it is on
/// show or sorted by.
struct ColumnFacts {
    ProcessFacts* facts = nullptr;
    QHash<qint32, QString> names;    ///< of all processes, by PID
    QHash<qint32, QString> sessions; ///< titles of sessions, by the PID of each member
};
