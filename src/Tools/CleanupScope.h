#pragma once

#include "Tools/Excludes.h"
#include "Tools/Folder.h"
#include "Tools/OpenFiles.h"

#include <ctime>
#include <optional>
#include <unordered_set>

namespace Tools {

/// The entries of a folder that a cleanup removes.
struct CleanupScope {
    std::string top; ///< absolute path of the folder

    /// Only regular files anywhere below the folder whose modification and status change are both more than
    /// so many whole days ago. Without it: all in the folder except names that begin with two dots.
    std::optional<long> olderThanDays;
    std::time_t now = 0; ///< base of the ages

    bool screenshotsOnly = false; ///< pictures and recordings whose name begins with "Screen"

    /// A folder like /tmp: old files of this user only, without used files and locks of X servers or sockets.
    bool isShared = false;

    std::set<FileIdentity> kept; ///< never removed, with their contents
    Excludes excludes;           ///< never removed either

    std::unordered_set<ino_t> used; ///< what running programs have open on the file system of the folder

    bool keeps(const struct stat& entry) const { return kept.contains({entry.st_dev, entry.st_ino}); }
    /// Returns whether an entry below the folder stays because of itself or a folder on the way to it.
    bool excludesWayTo(const std::string& relative) const { return excludes.reach(top, relative); }
    bool isOld(const struct stat& entry) const;
    /// Returns whether the entry `name` of the folder with this descriptor is an old file in scope.
    bool takesOldFile(int folder, const char* name, const struct stat& entry) const;
};

/// Returns whether a file with these first bytes is a picture or recording.
bool isPicture(std::string_view head);

} // namespace Tools
