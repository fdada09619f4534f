#include "Tools/OpenFiles.h"

#include "Tools/Folder.h"
#include "Tools/Texts.h"

#include <fcntl.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <fstream>

using namespace Tools;

namespace {

class Search {
public:
    explicit Search(const std::string& procFolder)
        : m_procFolder(procFolder) {}

    std::set<FileIdentity> run();

private:
    void addFile(int folder, const char* path);
    void addDescriptors(const Folder& folder);
    void addMappings(const std::string& table);

    const std::string& m_procFolder;
    std::set<std::string> m_mapped; ///< paths that were looked up
    std::set<FileIdentity> m_found;
};

void Search::addFile(int folder, const char* path) {
    struct statx status;
    // What a file server last said is enough: one that hangs does not hold this up.
    const int flags = AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
    if (statx(folder, path, flags, STATX_TYPE | STATX_INO, &status) == 0 &&
        (S_ISREG(status.stx_mode) || S_ISDIR(status.stx_mode)))
        m_found.emplace(makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino);
}

void Search::addDescriptors(const Folder& folder) {
    const auto names = folder.names();
    for (const std::string& name : names.value_or(std::vector<std::string>()))
        addFile(folder.descriptor(), name.c_str());
}

/// Adds mapped files (proc(5), maps: "address perms offset MAJOR:MINOR INODE path", a line break in the path
/// as "\012"). The path counts, because the device differs from that of stat(2) on Btrfs and overlays.
void Search::addMappings(const std::string& table) {
    std::ifstream maps(table);
    for (std::string line; std::getline(maps, line);) {
        const std::size_t path = line.find('/');
        if (path != std::string::npos && m_mapped.insert(line.substr(path)).second)
            addFile(AT_FDCWD, line.c_str() + path);
    }
}

std::set<FileIdentity> Search::run() {
    const auto proc = Folder::open(m_procFolder);
    const auto names = proc ? proc->names() : std::nullopt;
    const std::string own = std::to_string(getpid());
    const auto isDigit = [](unsigned char c) { return std::isdigit(c) != 0; };
    for (const std::string& name : names.value_or(std::vector<std::string>())) {
        if (!std::ranges::all_of(name, isDigit) || name == own)
            continue;
        const auto descriptors = proc->openBelow(name + "/fd");
        if (!descriptors) // somebody else's, or a part of the kernel
            continue;
        addDescriptors(*descriptors);
        for (const char* link : {"/cwd", "/exe"})
            addFile(proc->descriptor(), (name + link).c_str());
        addMappings(m_procFolder + '/' + name + "/maps");
    }
    return m_found;
}

} // namespace

std::set<FileIdentity> Tools::openFiles(const std::string& procFolder) {
    return Search(procFolder).run();
}

std::string Tools::textOf(const std::set<FileIdentity>& files) {
    std::string text;
    for (const auto& [device, inode] : files)
        text += std::to_string(device) + ':' + std::to_string(inode) + '\0';
    return text;
}

std::optional<std::set<FileIdentity>> Tools::parseFiles(std::string_view text) {
    std::set<FileIdentity> files;
    while (!text.empty()) {
        FileIdentity file;
        if (!takeNumber(text, file.first, ':') || !takeNumber(text, file.second, '\0'))
            return std::nullopt;
        files.insert(files.end(), file);
    }
    return files;
}
