#pragma once

#include "Core/Models.h"

#include <QString>
#include <QStringList>

#include <optional>

class Places;

/// What the scanner and the cleaner must agree on, so that what was measured is what gets deleted.
namespace CleanupPlan {

/// A target of which only files past an age count.
struct OldFiles {
    QString root; ///< may begin with "~"
    int days;
    QString namePattern; ///< of find's -name; empty for every name

    /// find(1)'s arguments up to the action, for the regular files below `folder` that are older than
    /// `days` whole days.
    QStringList findArguments(const QString& folder) const;
};

/// By the target's exact name; empty for a target of whole folders.
std::optional<OldFiles> oldFiles(const QString& targetName);

/// The target's paths as this system has them, in order and each place once: a path that leads to a place
/// already listed, or into one, is left out. A path need not exist.
QStringList placesOf(const CacheTarget& target, const Places& places);

} // namespace CleanupPlan
