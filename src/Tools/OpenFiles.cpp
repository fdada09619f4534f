#include "Tools/OpenFiles.h"

#include "Tools/ProcessFolder.h"
#include "Tools/Texts.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Tools;

namespace {

void addFile(std::set<FileIdentity>& files, int folder, const char* path) {
    struct statx status;
    // What a file server last said is enough: one that hangs does not hold this up.
    const int flags = AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
    if (statx(folder, path, flags, STATX_TYPE | STATX_INO, &status) == 0 &&
        (S_ISREG(status.stx_mode) || S_ISDIR(status.stx_mode)))
        files.emplace(makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino);
}

} // namespace

std::set<FileIdentity> Tools::openFiles(const std::string& procFolder) {
    std::set<FileIdentity> files;
    std::set<std::string> mapped; // looked up already
    ProcessFolder::forEach(procFolder, [&](const ProcessFolder& process) {
        process.forEachLink([&](int folder, const char* link) { addFile(files, folder, link); });
        // The path counts, because the device that is mapped differs from that of stat(2) on Btrfs and
        // overlays.
        process.forEachMapped([&](const std::string& path) {
            if (mapped.insert(path).second)
                addFile(files, AT_FDCWD, path.c_str());
        });
    });
    return files;
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
