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

/// A target whose clean failed.
struct CleanupFailure {
    QString target;
    QString reason; ///< empty when unknown

    bool operator==(const CleanupFailure&) const = default;
};

/// The outcome of the cleans that overlap: it begins when one starts while no other runs.
struct CleanupReport {
    bool wasCancelled = false;
    QList<CleanupFailure> failures = {};
    int cleaned = 0;        ///< targets that did not fail
    quint64 freedBytes = 0; ///< by these

    bool operator==(const CleanupReport&) const = default;
};
