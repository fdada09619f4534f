#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tools {

/// What of a folder is to go. As text: records that a NUL ends, the first "DEVICE:INODE" of the folder, each
/// other one "INODE BYTES PATH" of an entry, the path relative to the folder. A path holds any byte but NUL.
struct CleanupListing {
    struct Entry {
        ino_t inode = 0;
        std::uint64_t bytes = 0; ///< an old file's length; else what the entry takes with all below it
        std::string path;

        bool operator==(const Entry&) const = default;
    };

    dev_t device = 0;
    ino_t inode = 0;
    std::vector<Entry> entries;

    bool operator==(const CleanupListing&) const = default;

    std::string text() const;
    /// Nothing for text in any other form: a part of a listing is none.
    static std::optional<CleanupListing> parse(std::string_view text);
};

} // namespace Tools
