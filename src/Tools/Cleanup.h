#pragma once

#include "Tools/CleanupScope.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string_view>
#include <vector>

namespace Tools {

/// The entries of a folder to remove. Its text is records ended by NUL: "DEVICE:INODE BYTES LISTED" of the
/// folder, then "INODE BYTES MODIFIED MARKS PATH" of each entry. The marks are "d" for a folder, "u" for one
/// in use, or "-" for none. A path is relative to the folder, of any bytes but NUL.
struct CleanupListing {
    struct Entry {
        ino_t inode = 0;
        std::uint64_t bytes = 0;   ///< an old file's length, otherwise disk usage with all below it
        std::int64_t modified = 0; ///< seconds since 1970, of the newest below it; of a leftover its own
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

    void write(std::ostream& into) const;
    /// Returns an empty optional for malformed or incomplete text.
    static std::optional<CleanupListing> parse(std::string_view text);
};

/// Returns the present as CleanupListing::listed has it.
std::int64_t nanosecondsNow();

/// Lists the entries in scope of `folder`, or of the folder at the relative path `inside` in it, which is
/// listed as if it were all of `folder`. Unreadable entries are left out. Returns an empty optional and sets
/// errno when the folder inside cannot be opened.
std::optional<CleanupListing> listEntries(const Folder& folder, const std::string& inside,
                                          const CleanupScope& scope);

/// Returns the part of a listing that removeEntries would remove now.
CleanupListing checkEntries(const Folder& folder, const CleanupListing& listing, const CleanupScope& scope);

/// What is gone already.
struct Removed {
    std::uint64_t bytes = 0; ///< allocated, of a file with several links when the last one goes
    std::uint64_t entries = 0;
};

/// The entries that could not be removed.
struct Remainder {
    int count = 0;
    std::string first; ///< path of the first one
    int error = 0;     ///< errno of the first one
    Removed removed;
    bool isStopped = false;
};

/// Removes the listed entries from `folder`, folders with their contents. Keeps an entry that was replaced
/// since it was listed, a file that is no longer old, what came into a listed folder or changed there after
/// the listing began, and the folders on the way to what stays. Follows no symlinks and stays on the file
/// system. `goesOn` is called before each entry, below listed folders too; the removal ends when it returns
/// false.
Remainder removeEntries(const Folder& folder, const CleanupListing& listing, const CleanupScope& scope,
                        const std::function<bool(const Removed&)>& goesOn);

} // namespace Tools
