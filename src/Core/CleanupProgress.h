#pragma once

#include <QString>

/// How far a scan or a clean has come.
struct CleanupProgress {
    QString target; ///< the name of the target being worked on
    int done = 0;
    int total = 0;

    bool operator==(const CleanupProgress&) const = default;
};
