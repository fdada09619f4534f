#pragma once

#include "Tools/FolderWalk.h"

#include <optional>

namespace Tools {

/// What a folder takes with all below it on its file system.
struct FolderSize {
    std::uint64_t blocks = 0; ///< allocated, of 512 bytes, see stat(2)
    std::uint64_t unread = 0; ///< see FolderWalkResult
    bool isEstimate = false;  ///< it has more hard links than are remembered
};

/// Measures a folder, or a file, as `du -sx` does (see walkFolder). `tell` is called by one thread at a time.
/// `begins` is called for each part of a folder before it is read, by several threads at once. Returns an
/// empty optional and sets errno when the path itself cannot be accessed.
std::optional<FolderSize> measureFolder(
    const std::string& path, std::function<void(UnreadEntry)> tell, const FolderWalkLimits& limits = {},
    std::function<void()> begins = [] {});

} // namespace Tools
