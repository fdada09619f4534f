#pragma once

#include "Tools/Folder.h"

#include <functional>
#include <string>

namespace Tools {

/// The folder of a running process in procfs.
class ProcessFolder {
public:
    /// Calls `use` with that of each running process but this one. `procFolder` is the mount point of procfs.
    static void forEach(const std::string& procFolder, const std::function<void(const ProcessFolder&)>& use);

    /// Calls `use` with each file and folder that the process has open, runs or works in: links in an open
    /// folder. There are none where this user may not read the process.
    void forEachLink(const std::function<void(int folder, const char* link)>& use) const;
    /// Calls `use` with the path of each mapped file, at times with the same again.
    void forEachMapped(const std::function<void(const std::string& path)>& use) const;
    /// Returns the text of a file in the folder, up to a mebibyte.
    std::string text(const char* file) const;

private:
    ProcessFolder(Folder folder, std::string path);

    Folder m_folder;
    std::string m_path;
};

} // namespace Tools
