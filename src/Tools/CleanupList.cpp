#include "Tools/Cleanup.h"

using namespace Tools;

namespace {

std::uint64_t bytesOf(const struct stat& entry) {
    return S_ISREG(entry.st_mode) ? static_cast<std::uint64_t>(entry.st_size) : 0;
}

/// What an entry takes on disk with all that is below it on the same file system.
std::uint64_t bytesBelow(const Folder& parent, const std::string& name, const struct stat& entry, int depth) {
    constexpr std::uint64_t unit = 512; // of st_blocks, see stat(2)
    std::uint64_t bytes = static_cast<std::uint64_t>(entry.st_blocks) * unit;
    if (!S_ISDIR(entry.st_mode) || depth >= maxFolderDepth)
        return bytes;
    const auto folder = parent.openBelow(name);
    const auto names = folder ? folder->names() : std::nullopt;
    for (const std::string& inner : names.value_or(std::vector<std::string>())) {
        if (const auto found = folder->look(inner))
            bytes += bytesBelow(*folder, inner, *found, depth + 1);
    }
    return bytes;
}

void addOldFiles(const Folder& folder, const std::string& path, const CleanupScope& scope, int depth,
                 CleanupListing& listing) {
    const auto names = folder.names();
    if (!names)
        return;
    for (const std::string& name : *names) {
        const auto entry = folder.look(name);
        if (!entry || scope.keeps(*entry))
            continue;
        if (scope.takesOldFile(folder, name, *entry)) {
            listing.entries.push_back({entry->st_ino, bytesOf(*entry), path + name});
        } else if (S_ISDIR(entry->st_mode) && depth < maxFolderDepth) {
            if (const auto inner = folder.openBelow(name))
                addOldFiles(*inner, path + name + '/', scope, depth + 1, listing);
        }
    }
}

} // namespace

CleanupListing Tools::listEntries(const Folder& folder, const CleanupScope& scope) {
    CleanupListing listing{.device = folder.device(), .inode = folder.inode(), .entries = {}};
    if (scope.olderThanDays) {
        addOldFiles(folder, {}, scope, 0, listing);
        return listing;
    }
    const auto names = folder.names();
    for (const std::string& name : names.value_or(std::vector<std::string>())) {
        const auto entry = folder.look(name);
        if (entry && !name.starts_with("..") && !scope.keeps(*entry))
            listing.entries.push_back({entry->st_ino, bytesBelow(folder, name, *entry, 0), name});
    }
    return listing;
}
