#pragma once

#include "Core/Instant.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// One path of a cleanup target, measured.
struct CacheEntry {
    QString path;
    quint64 sizeBytes = 0;

    bool operator==(const CacheEntry&) const = default;
};

/// How a target is measured, previewed and cleaned. One with a command of its own is cleaned by that alone.
struct CleanupRule {
    enum class Measure {
        folders,   ///< whole folders, which are emptied
        oldFiles,  ///< files in them that are older than `olderThanDays`
        containers ///< what the container engine reports
    };

    Measure measure = Measure::folders;
    int olderThanDays = 0;
    bool screenshotsOnly = false;
    bool isShared = false;       ///< its folder is everybody's, and programs work in it
    bool holdsUserFiles = false; ///< nothing that comes back by itself

    bool operator==(const CleanupRule&) const = default;
};

/// A folder as a scan found it.
struct ListedFolder {
    QString path;
    quint64 sizeBytes = 0;
    QByteArray listing; ///< what of it goes, as the program `cleanup` lists it; empty when that failed

    bool operator==(const ListedFolder&) const = default;
};

/// A named set of directories that can be cleaned. From `sizeBytes` on, but for `rule`, the fields are what
/// the last scan found.
struct CacheTarget {
    QString name; ///< unique
    QString symbol;
    QList<QString> paths = {}; ///< may begin with "~"
    std::optional<QString> pruneCommand = std::nullopt;
    quint64 sizeBytes = 0;
    QList<CacheEntry> details = {};
    std::optional<Instant> lastScanned = std::nullopt;
    CleanupRule rule = {};
    QList<ListedFolder> listed = {}; ///< what a clean will do, no less and no more
    quint64 sharedBytes = 0;         ///< the part of `sizeBytes` that another target of the same list has too
    QStringList volumes = {};        ///< of containers, that go with all that is in them
    QStringList notes = {};          ///< sentences for the user, such as why a folder is left alone

    bool operator==(const CacheTarget&) const = default;

    /// The fixed catalogue, nothing measured.
    static const QList<CacheTarget>& defaults();
};
