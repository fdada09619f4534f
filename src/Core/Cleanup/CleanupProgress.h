#pragma once

#include <QList>
#include <QString>

/// How far a scan or a clean has come.
struct CleanupProgress {
    QString target; ///< the name of the target being worked on
    int done = 0;
    int total = 0;

    bool operator==(const CleanupProgress&) const = default;
};

/// A target whose clean did not come to its end.
struct CleanupFailure {
    QString target; ///< its name
    QString reason; ///< empty when not known

    bool operator==(const CleanupFailure&) const = default;
};

/// What became of the cleans that began since nothing was being cleaned.
struct CleanupReport {
    bool wasCancelled = false;
    QList<CleanupFailure> failures = {};

    bool operator==(const CleanupReport&) const = default;
};
