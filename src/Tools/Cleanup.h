#pragma once

#include "Tools/CleanupScope.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace Tools {

/// The entries of a folder to remove. Its text is records ended by NUL: "DEVICE:INODE BYTES LISTED" of the
/// folder, then "INODE BYTES MODIFIED MARKS PATH" of each entry. The marks are "d" for a folder, "u" for one
/// in use, or "-" for none. A path is relative to the folder, of any bytes but NUL.
struct CleanupListing {
    struct Entry {
        ino_t inode = 0;
        std::uint64_t bytes = 0; ///< an old file's length, otherwise disk usage with all below it
        std::int64_t modified = 0; ///< seconds since 1970, of the newest below it
        bool isFolder = false;
        bool isInUse = false; ///< a running program has it open, or something below it
        std::string path;

        bool operator==(const Entry&) const = default;
    };

    dev_t device = 0;
    ino_t inode = 0;
    std::uint64_t bytes = 0; ///< of the folder with all below it, or of the old files
    std::int64_t listed = 0; ///< nanoseconds since 1970, when listing began
    std::vector<Entry> entries;

    bool operator==(const CleanupListing&) const = default;

    std::string text() const;
    /// Returns an empty optional for malformed or incomplete text.
    static std::optional<CleanupListing> parse(std::string_view text);
};

/// The entries that could not be removed.
struct Remainder {
    int count = 0;
    std::string first; ///< path of the first one
    int error = 0;     ///< errno of the first one
};

/// Lists the entries of `folder` in scope. Unreadable ones are left out.
CleanupListing listEntries(const Folder& folder, const CleanupScope& scope);

/// Removes the listed entries from `folder`, folders with their contents. Keeps an entry that was replaced
/// since it was listed, and a file that is no longer old. Follows no symlinks and stays on the file system.
Remainder removeEntries(const Folder& folder, const CleanupListing& listing, const CleanupScope& scope);

} // namespace Tools
