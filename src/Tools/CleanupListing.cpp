#include "Tools/Cleanup.h"

#include <charconv>
#include <chrono>

using namespace Tools;

namespace {

std::uint64_t bytesOf(const struct stat& entry) {
    return S_ISREG(entry.st_mode) ? static_cast<std::uint64_t>(entry.st_size) : 0;
}

std::uint64_t usageOf(const struct stat& entry) {
    constexpr std::uint64_t unit = 512; // of st_blocks, see stat(2)
    return static_cast<std::uint64_t>(entry.st_blocks) * unit;
}

/// Adds an entry with all below it on the same file system to `listed`.
void addBelow(const Folder& parent, const std::string& name, const struct stat& entry, int depth,
              CleanupListing::Entry& listed) {
    listed.bytes += usageOf(entry);
    listed.modified = std::max<std::int64_t>(listed.modified, entry.st_mtime);
    if (!S_ISDIR(entry.st_mode) || depth >= maxFolderDepth)
        return;
    const auto folder = parent.openBelow(name);
    const auto names = folder ? folder->names() : std::nullopt;
    for (const std::string& inner : names.value_or(std::vector<std::string>())) {
        if (const auto found = folder->status(inner))
            addBelow(*folder, inner, *found, depth + 1, listed);
    }
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
            listing.bytes += bytesOf(*entry);
            listing.entries.push_back({.inode = entry->st_ino,
                                       .bytes = bytesOf(*entry),
                                       .modified = entry->st_mtime,
                                       .path = path + name});
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

std::string marksOf(const CleanupListing::Entry& entry) {
    const std::string marks = std::string(entry.isFolder ? "d" : "") + (entry.isInUse ? "u" : "");
    return marks.empty() ? "-" : marks;
}

/// Takes the marks and the space behind them off the front.
bool takeMarks(std::string_view& text, CleanupListing::Entry& entry) {
    const std::string_view marks = text.substr(0, text.find(' '));
    entry.isFolder = marks.starts_with('d');
    entry.isInUse = marks.ends_with('u');
    if (marks != marksOf(entry) || marks.size() == text.size())
        return false;
    text.remove_prefix(marks.size() + 1);
    return true;
}

std::int64_t nanosecondsNow() {
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

} // namespace

CleanupListing Tools::listEntries(const Folder& folder, const CleanupScope& scope) {
    CleanupListing listing{.device = folder.device(), .inode = folder.inode(), .listed = nanosecondsNow()};
    if (scope.olderThanDays) {
        addOldFiles(folder, {}, scope, 0, listing);
        return listing;
    }
    const auto names = folder.names();
    for (const std::string& name : names.value_or(std::vector<std::string>())) {
        const auto entry = folder.status(name);
        if (!entry || name.starts_with("..") || scope.keeps(*entry))
            continue;
        CleanupListing::Entry listed{
            .inode = entry->st_ino, .isFolder = S_ISDIR(entry->st_mode), .path = name};
        addBelow(folder, name, *entry, 0, listed);
        listing.bytes += listed.bytes;
        listing.entries.push_back(std::move(listed));
    }
    if (const auto own = folder.status("."))
        listing.bytes += usageOf(*own);
    return listing;
}

std::string CleanupListing::text() const {
    std::string text = std::to_string(device) + ':' + std::to_string(inode) + ' ' + std::to_string(bytes) +
                       ' ' + std::to_string(listed) + '\0';
    for (const Entry& entry : entries) {
        text += std::to_string(entry.inode) + ' ' + std::to_string(entry.bytes) + ' ' +
                std::to_string(entry.modified) + ' ' + marksOf(entry) + ' ' + entry.path;
        text += '\0';
    }
    return text;
}

std::optional<CleanupListing> CleanupListing::parse(std::string_view text) {
    CleanupListing listing;
    if (!takeNumber(text, listing.device, ':') || !takeNumber(text, listing.inode, ' ') ||
        !takeNumber(text, listing.bytes, ' ') || !takeNumber(text, listing.listed, '\0'))
        return std::nullopt;
    while (!text.empty()) {
        Entry entry;
        if (!takeNumber(text, entry.inode, ' ') || !takeNumber(text, entry.bytes, ' ') ||
            !takeNumber(text, entry.modified, ' ') || !takeMarks(text, entry))
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
