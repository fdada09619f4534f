#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Something of this system that a cleanup may free, besides the fixed catalogue.
struct PlatformTarget {
    QString name; ///< unique, in English; shown through the translations
    QString symbol = {};
    QStringList paths = {}; ///< as Places::locate takes them
    QString reason = {};    ///< why it may go, a sentence in the user's language
    int olderThanDays = 0;  ///< only older files; 0 for all in the folders
    bool isShared = false;  ///< of these, only files of the user that are not open: a folder is everybody's
    bool isData = false;    ///< somebody's work: no program makes it again
    bool isInCleanAll = true;

    /// Cleans it in the place of an emptying of the paths, in a login shell.
    std::optional<QString> command = std::nullopt;
    /// Prints the size in bytes as the first word of its last line, where the paths do not tell it.
    std::optional<QString> sizeCommand = std::nullopt;
    bool isContainerEngine = false; ///< `command` begins with the client of a container engine like Docker's

    bool operator==(const PlatformTarget&) const = default;
};

/// What can be cleaned on this system.
class CleanupTargets {
public:
    virtual ~CleanupTargets() = default;

    /// Returns the targets in their order, whether or not there is something of them here.
    virtual QList<PlatformTarget> all() const = 0;
    /// Returns what is in use of a target of somebody's work: absolute paths that stay, with all below them.
    /// The thread that calls it may wait for a file system.
    virtual QStringList kept(const PlatformTarget& /*target*/) const { return {}; }
    /// Returns what a person calls the entries of a folder of such a target, by their names, where these say
    /// nothing. The thread that calls it may wait for a file system.
    virtual QHash<QString, QString> namesIn(const QString& /*folder*/) const { return {}; }
};
