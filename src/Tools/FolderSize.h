#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace Tools {

/// What a folder takes with all below it on its file system.
struct FolderSize {
    std::uint64_t blocks = 0; ///< allocated, of 512 bytes, see stat(2)
    std::uint64_t unread = 0; ///< entries whose size, and folders whose entries, could not be read
    bool isEstimate = false;  ///< it has more hard links than are remembered
};

struct FolderSizeLimits {
    unsigned threads = 8; ///< more than most have processors: they wait for the disk at the same time
    std::size_t linkedFiles = 3 << 20; ///< remembered, in 32 MiB
    std::size_t openFolders = 128;     ///< of each thread; fewer if the descriptor limit is low
};

/// An entry, or the entries of a folder, that could not be read.
struct UnreadEntry {
    std::string path;
    int error = 0; ///< errno
    bool isFolder = false;
};

/// Measures a folder, or a file, as `du -sx` does: symlinks are not followed, other file systems are left
/// out, a file with several links counts once. When the links are too many to remember, each link of a
/// further file counts for its share. Memory grows with the depth of a tree, not with its width. `tell` is
/// called by one thread at a time. Returns an empty optional and sets errno when the path itself cannot be
/// accessed.
std::optional<FolderSize> measureFolder(const std::string& path, std::function<void(UnreadEntry)> tell,
                                        const FolderSizeLimits& limits = {});

} // namespace Tools
