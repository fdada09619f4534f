#pragma once

#include "Core/Models.h"

/// Puts every process into one of the six groups by fixed rules on its name, path and arguments.
class ProcessGrouper {
public:
    /// The same records in the same order, each with its group. Hand the list over to spare a copy.
    QList<ProcSample> classify(QList<ProcSample> processes) const;

private:
    ProcGroup groupFor(const ProcSample& process) const;
};
