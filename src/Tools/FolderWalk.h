#pragma once

#include "Tools/FolderTrail.h"

#include <sys/stat.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

namespace Tools {

/// An entry, or the entries of a folder, that could not be read.
struct UnreadEntry {
    std::string path;
    int error = 0; ///< errno
    bool isFolder = false;
};

/// What a part of a walk adds up to.
struct FolderShare {
    std::atomic<std::uint64_t> blocks = 0;  ///< allocated, of 512 bytes, see stat(2)
    std::atomic<std::int64_t> modified = 0; ///< seconds since 1970, of the newest
};

struct FolderWalkLimits {
    unsigned threads = 8; ///< more than most have processors: they wait for the disk at the same time
    std::size_t linkedFiles = 3 << 20; ///< remembered, in 32 MiB
    std::size_t openFolders = 128;     ///< of each thread; fewer if the descriptor limit is low
};

struct FolderWalkResult {
    std::uint64_t unread = 0; ///< entries whose status, and folders whose entries, could not be read
    bool isEstimate = false;  ///< there are more hard links than are remembered
};

/// An entry that a walk has met, on the file system where the walk began.
struct FoundEntry {
    const FoundFolder& parent;
    int folder; ///< an open descriptor of the parent
    const char* name;
    const struct statx& status;
};

/// What a walk is for. The functions are called by several threads at once.
class FolderTask {
public:
    virtual ~FolderTask() = default;

    /// Returns to what the entry adds, or nullptr to leave it out with all below it. The share has to stay
    /// where it is until the walk ends. What is below a folder is offered with `parent.share` set to it.
    virtual FolderShare* find(const FoundEntry& entry) = 0;
    /// Is told of each part of a folder before it is read, by several threads at once.
    virtual void begin() {}
    /// Is told of what cannot be read, by one thread at a time.
    virtual void miss(const UnreadEntry& /*entry*/) {}
};

/// Walks over all below a folder as `du -x` does: symlinks are not followed, other file systems are left out,
/// a file with several links adds to the share that has it first. When the links are too many to remember,
/// each link of a further file adds its part. Memory grows with the depth of a tree, not with its width.
/// `descriptor` is the folder, and `share` the one of the folder itself, to which the walk adds nothing.
FolderWalkResult walkFolder(const std::string& path, int descriptor, FolderShare* share, FolderTask& task,
                            const FolderWalkLimits& limits = {});

/// Returns the path of an entry, or of the folder itself without a name. `top` is the path of the folder
/// where the walk began; without it the result is relative to that folder.
std::string pathOf(const std::string& top, const FoundFolder* folder, const char* name);

} // namespace Tools
