#include "Tools/Cleanup.h"

#include <charconv>

using namespace Tools;

namespace {

std::uint64_t bytesOf(const struct stat& entry) {
    return S_ISREG(entry.st_mode) ? static_cast<std::uint64_t>(entry.st_size) : 0;
}

/// Returns the disk usage of an entry with all below it on the same file system.
std::uint64_t bytesBelow(const Folder& parent, const std::string& name, const struct stat& entry, int depth) {
    constexpr std::uint64_t unit = 512; // of st_blocks, see stat(2)
    std::uint64_t bytes = static_cast<std::uint64_t>(entry.st_blocks) * unit;
    if (!S_ISDIR(entry.st_mode) || depth >= maxFolderDepth)
        return bytes;
    const auto folder = parent.openBelow(name);
    const auto names = folder ? folder->names() : std::nullopt;
    for (const std::string& inner : names.value_or(std::vector<std::string>())) {
        if (const auto found = folder->status(inner))
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
        const auto entry = folder.status(name);
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

/// Takes a number and the character `end` off the front.
template <typename T> bool takeNumber(std::string_view& text, T& number, char end) {
    const auto [rest, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc() || rest == text.data() + text.size() || *rest != end)
        return false;
    text.remove_prefix(static_cast<std::size_t>(rest - text.data()) + 1);
    return true;
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
        const auto entry = folder.status(name);
        if (entry && !name.starts_with("..") && !scope.keeps(*entry))
            listing.entries.push_back({entry->st_ino, bytesBelow(folder, name, *entry, 0), name});
    }
    return listing;
}

std::string CleanupListing::text() const {
    std::string text = std::to_string(device) + ':' + std::to_string(inode) + '\0';
    for (const Entry& entry : entries) {
        text += std::to_string(entry.inode) + ' ' + std::to_string(entry.bytes) + ' ' + entry.path;
        text += '\0';
    }
    return text;
}

std::optional<CleanupListing> CleanupListing::parse(std::string_view text) {
    CleanupListing listing;
    if (!takeNumber(text, listing.device, ':') || !takeNumber(text, listing.inode, '\0'))
        return std::nullopt;
    while (!text.empty()) {
        Entry entry;
        if (!takeNumber(text, entry.inode, ' ') || !takeNumber(text, entry.bytes, ' '))
            return std::nullopt;
        const std::size_t end = text.find('\0');
        if (end == std::string_view::npos || end == 0)
            return std::nullopt;
        entry.path = text.substr(0, end);
        listing.entries.push_back(std::move(entry));
        text.remove_prefix(end + 1);
    }
    return listing;
}
