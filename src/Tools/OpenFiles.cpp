#include "Tools/CleanupScope.h"

#include <fcntl.h>

#include <algorithm>
#include <cctype>
#include <fstream>

using namespace Tools;

namespace {

void addDescriptors(const Folder& folder, std::set<FileIdentity>& found) {
    const auto names = folder.names();
    if (!names)
        return;
    for (const std::string& name : *names) {
        struct stat status {};
        if (fstatat(folder.descriptor(), name.c_str(), &status, 0) == 0 && S_ISREG(status.st_mode))
            found.emplace(status.st_dev, status.st_ino);
    }
}

/// Adds mapped files (proc(5), maps: "address perms offset MAJOR:MINOR INODE path", a line break in the path
/// as "\012"). The path counts, because the device differs from that of stat(2) on Btrfs and overlays.
void addMappings(const std::string& table, std::set<FileIdentity>& found) {
    std::ifstream maps(table);
    std::set<std::string> asked;
    for (std::string line; std::getline(maps, line);) {
        const std::size_t path = line.find('/');
        struct stat status {};
        if (path != std::string::npos && asked.insert(line.substr(path)).second &&
            stat(line.c_str() + path, &status) == 0)
            found.emplace(status.st_dev, status.st_ino);
    }
}

} // namespace

std::set<FileIdentity> Tools::openFiles(const std::string& procFolder) {
    std::set<FileIdentity> found;
    const auto proc = Folder::open(procFolder);
    const auto names = proc ? proc->names() : std::nullopt;
    if (!names)
        return found;
    const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    for (const std::string& name : *names) {
        if (!std::ranges::all_of(name, isDigit))
            continue;
        if (const auto descriptors = proc->openBelow(name + "/fd"))
            addDescriptors(*descriptors, found);
        addMappings(procFolder + '/' + name + "/maps", found);
    }
    return found;
}
