#pragma once

#include <QList>
#include <QString>

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
