#pragma once

#include "Core/Instant.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

struct PlatformTarget;

/// One path of a cleanup target, measured.
struct CacheEntry {
    QString path;
    quint64 sizeBytes = 0;

    bool operator==(const CacheEntry&) const = default;
};

/// How a target is measured, previewed and cleaned. A target with a prune command is cleaned by that alone.
struct CleanupRule {
    enum class Measure {
        folders,    ///< whole folders, which are emptied
        oldFiles,   ///< files in them that are older than `olderThanDays`
        containers, ///< what the container engine reports
        command     ///< what the target's own command prints
    };

    Measure measure = Measure::folders;
    int olderThanDays = 0;
    bool screenshotsOnly = false;
    bool isShared = false;          ///< its folder is everybody's, and programs work in it
    bool hasUserFiles = false;      ///< files that no program makes again
    std::vector<QString> kept = {}; ///< absolute paths that stay, with all below them
    /// What stays, with all below it: patterns for absolute paths and for names, where "*" matches slashes
    /// too.
    QStringList excludes = {};

    bool operator==(const CleanupRule&) const = default;
};

/// A folder as a scan found it.
struct ListedFolder {
    QString path;
    quint64 sizeBytes = 0;
    QByteArray listing; ///< what a clean removes, as the program `cleanup` lists it; empty after a failure
    QString root = {};  ///< its path without symlinks above it; empty when nobody has looked
    QHash<QString, QString> names = {}; ///< what a person calls its entries, see CleanupTargets::namesIn

    /// Returns the path to work on.
    QString realPath() const { return root.isEmpty() ? path : root; }

    bool operator==(const ListedFolder&) const = default;
};

/// A named set of directories that can be cleaned. The fields from `sizeBytes` on, except `rule`, are results
/// of the last scan.
struct CacheTarget {
    QString name; ///< unique
    QString symbol;
    QList<QString> paths = {}; ///< may begin with "~"
    std::optional<QString> pruneCommand = std::nullopt;
    quint64 sizeBytes = 0;
    QList<CacheEntry> details = {};
    std::optional<Instant> lastScanned = std::nullopt;
    CleanupRule rule = {};
    QList<ListedFolder> listed = {}; ///< exactly what a clean removes
    quint64 sharedBytes = 0;         ///< the part of `sizeBytes` that is in another target of the list too
    /// Of containers, removed with their contents; an empty optional while it is unknown which.
    std::optional<QStringList> volumes = QStringList();
    QStringList notes = {};   ///< sentences for the user, such as why a folder is left alone
    QString reason = {};      ///< why it may go, a sentence; empty for the fixed catalogue
    bool isInCleanAll = true; ///< cleaned with all others; else only when it is chosen
    /// Prints the size in bytes as the first word of its last line.
    QString sizeCommand = {};

    bool operator==(const CacheTarget&) const = default;

    /// Returns the fixed catalogue, without results of a scan.
    static const QList<CacheTarget>& defaults();
    /// Returns a target of the system's own.
    static CacheTarget of(const PlatformTarget& target);
    /// Returns whether the target is one of the system's own, not of the fixed catalogue.
    bool isOfSystem() const { return !reason.isEmpty(); }
};
