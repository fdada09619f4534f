#pragma once

#include "Tools/Cleanup.h"
#include "Tools/Excludes.h"
#include "Tools/ProcessPaths.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Tools {

/// A project with folders that a tool can make again, such as "node_modules" and "target".
struct LeftoverProject {
    std::string path;
    std::int64_t lastUse = 0; ///< seconds since 1970, of its newest source or its last commit; 0: unknown
    std::vector<std::string> users; ///< names of the running programs that work in it
    /// What can be removed, as `cleanup remove` reads it. Its folder is the project, or the nearest one above
    /// whose path is valid UTF-8.
    CleanupListing listing;
    std::string listed; ///< the path of that folder

    /// Returns "project SECONDS PATH", "user NAME" of each and "folder PATH", each ended by NUL, and the
    /// listing.
    std::string text() const;
};

/// Looks for projects below `folders`, without hidden folders, links and other file systems, 12 folders deep,
/// and calls `found` with each that has leftovers. A folder in which git tracks something is none, and
/// what is excluded is not looked at. A project
/// is a work tree of git, or else the outermost folder with the file of a maker, such as "Cargo.toml". A
/// folder below another of the list is looked at once. Memory grows with the depth and with what one project
/// has. `looks` is told the path of each folder before it is read, and while one is
/// measured its path again and again, by several threads.
void findLeftovers(
    const std::vector<std::string>& folders, const ProcessPaths& processes, const Excludes& excludes,
    const std::function<void(const LeftoverProject&)>& found,
    const std::function<void(const std::string& folder)>& looks = [](const std::string&) {});

} // namespace Tools
