#pragma once

#include "Tools/Folder.h"

#include <ctime>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace Tools {

/// Device and inode of a file.
using FileIdentity = std::pair<dev_t, ino_t>;

/// The entries of a folder that a cleanup removes.
struct CleanupScope {
    /// Only regular files anywhere below the folder whose modification and status change are both more than
    /// so many whole days ago. Without it: all in the folder except names that begin with two dots.
    std::optional<long> olderThanDays;
    std::time_t now = 0; ///< base of the ages

    bool screenshotsOnly = false; ///< pictures and recordings whose name begins with "Screen"

    /// A folder like /tmp: old files of this user only, without open files and locks of X servers or sockets.
    bool isShared = false;

    std::set<FileIdentity> kept; ///< never removed, with their contents

    bool keeps(const struct stat& entry) const { return kept.contains({entry.st_dev, entry.st_ino}); }
    bool isOld(const struct stat& entry) const;
    /// Returns whether the entry `name` of `folder` is an old file in scope.
    bool takesOldFile(const Folder& folder, const std::string& name, const struct stat& entry) const;
    /// Adds the open files of running programs to `kept` if the folder is shared.
    void keepOpenFiles();
};

/// Returns the regular files that processes readable by this user have open or mapped. `procFolder` is the
/// mount point of procfs.
std::set<FileIdentity> openFiles(const std::string& procFolder);

/// Returns whether a file with these first bytes is a picture or recording.
bool isPicture(std::string_view head);

} // namespace Tools
