#pragma once

#include <QList>
#include <QString>

#include <optional>

/// How far a scan or a clean has come.
struct CleanupProgress {
    QString target; ///< the name of the target being worked on
    int done = 0;
    int total = 0;
    quint64 bytes = 0;      ///< measured so far, or removed so far
    quint64 totalBytes = 0; ///< to be removed; 0 while that is not known, as in a scan

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
    /// What came back on the volumes, of all cleans; negative when other programs wrote more.
    std::optional<qint64> volumeBytes = std::nullopt;

    bool operator==(const CleanupReport&) const = default;
};
