#pragma once

#include <string>
#include <utility>
#include <vector>

namespace Tools {

/// Where the running processes work: the paths that those readable by this user have as working folder,
/// program, open file, mapped file or argument.
class ProcessPaths {
public:
    /// Reads the processes of `procFolder`, the mount point of procfs, without this one. Keeps the paths at
    /// and below the folders.
    ProcessPaths(const std::string& procFolder, const std::vector<std::string>& folders);

    /// Returns the names of the processes with a path at or below the folder, each once.
    std::vector<std::string> usersOf(const std::string& folder) const;

private:
    std::vector<std::pair<std::string, std::string>> m_paths; ///< with the name of the process, by path
};

} // namespace Tools
