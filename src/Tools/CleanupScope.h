#pragma once

#include "Tools/Folder.h"

#include <ctime>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace Tools {

/// Device and inode: a file under whatever name.
using FileIdentity = std::pair<dev_t, ino_t>;

/// Which entries of a folder a cleanup is about.
struct CleanupScope {
    /// Only regular files, anywhere below the folder, whose content and whose arrival (status change) are
    /// both more than so many whole days old. Without it: whatever is in the folder, but for names that begin
    /// with two dots.
    std::optional<long> olderThanDays;
    std::time_t now = 0; ///< what ages are counted from

    bool screenshotsOnly = false; ///< pictures and recordings whose name begins with "Screen"

    /// A folder like /tmp: of the old files only the user's own, none that a running program has open, no
    /// lock of an X server and none beside a socket.
    bool isShared = false;

    std::set<FileIdentity> kept; ///< never to be removed, nor what is inside

    bool keeps(const struct stat& entry) const { return kept.contains({entry.st_dev, entry.st_ino}); }
    bool isOld(const struct stat& entry) const;
    /// Whether an entry `name` of `folder` is among the old files that the scope is about.
    bool takesOldFile(const Folder& folder, const std::string& name, const struct stat& entry) const;
    /// Fills `kept` with what running programs have open, where the folder is a shared one.
    void keepOpenFiles();
};

/// Regular files that the processes which this user may look into have open or mapped, read from the folders
/// of processes in `procFolder`.
std::set<FileIdentity> openFiles(const std::string& procFolder);

/// Whether the first bytes of a file are those of a picture or a moving picture.
bool isPicture(std::string_view head);

} // namespace Tools
