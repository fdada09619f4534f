#include "Tools/Cleanup.h"

#include "Tools/FolderWalk.h"
#include "Tools/Texts.h"

#include <sys/sysmacros.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <deque>
#include <mutex>
#include <ostream>

using namespace Tools;

namespace {

struct stat statOf(const struct statx& entry) {
    struct stat status {};
    status.st_dev = makedev(entry.stx_dev_major, entry.stx_dev_minor);
    status.st_ino = entry.stx_ino;
    status.st_mode = entry.stx_mode;
    status.st_uid = entry.stx_uid;
    status.st_size = static_cast<off_t>(entry.stx_size);
    status.st_mtime = entry.stx_mtime.tv_sec;
    status.st_ctime = entry.stx_ctime.tv_sec;
    return status;
}

/// Lists while it walks over a folder.
class Lister : public FolderTask {
public:
    /// `inside`: the relative path of the folder to list, empty for all of the folder.
    Lister(const CleanupScope& scope, const std::string& inside)
        : m_scope(scope)
        , m_inside(inside) {}

    /// Adds what the walk has found.
    virtual void finish(CleanupListing& listing) = 0;

    std::string pathOfTop() const { return m_inside.empty() ? m_scope.top : m_scope.top + '/' + m_inside; }

protected:
    bool leavesOut(const FoundEntry& entry, const struct stat& status) const {
        return (!m_scope.kept.empty() && m_scope.keeps(status)) ||
               (!m_scope.excludes.isEmpty() &&
                m_scope.excludes.match(pathOf(pathOfTop(), &entry.parent, entry.name), entry.name));
    }
    /// Returns the path of an entry relative to the folder of the listing.
    std::string pathInListing(const FoundEntry& entry) const {
        return pathOf(m_inside, &entry.parent, entry.name);
    }
    bool isUsed(const struct stat& entry) const { return m_scope.used.contains(entry.st_ino); }

    const CleanupScope& m_scope;
    const std::string& m_inside;
    std::mutex m_mutex; ///< of what has been listed
};

class EntryLister : public Lister {
public:
    using Lister::Lister;

    FolderShare* find(const FoundEntry& entry) override {
        const struct stat status = statOf(entry.status);
        if (leavesOut(entry, status))
            return nullptr;
        const bool isAtTop = !entry.parent.parent;
        Share* const share = isAtTop ? add(entry) : static_cast<Share*>(entry.parent.share);
        if (isUsed(status))
            share->isInUse = true;
        return share;
    }

    void finish(CleanupListing& listing) override {
        listing.bytes += m_unlisted.blocks * blockBytes;
        for (; !m_shares.empty(); m_shares.pop_front()) {
            Share& share = m_shares.front();
            share.entry.bytes = share.blocks * blockBytes;
            share.entry.modified = share.modified;
            share.entry.isInUse = share.isInUse;
            listing.bytes += share.entry.bytes;
            listing.entries.push_back(std::move(share.entry));
        }
        // As a preview shows them, which has no time to sort.
        std::ranges::stable_sort(listing.entries, std::ranges::greater(), &CleanupListing::Entry::bytes);
    }

private:
    struct Share : FolderShare {
        CleanupListing::Entry entry;
        std::atomic<bool> isInUse = false;
    };

    Share* add(const FoundEntry& found) {
        const bool isListed = !m_inside.empty() || !std::string_view(found.name).starts_with("..");
        if (!isListed)
            return &m_unlisted;
        const std::lock_guard lock(m_mutex);
        Share& share = m_shares.emplace_back();
        share.modified = found.status.stx_mtime.tv_sec;
        share.entry.inode = found.status.stx_ino;
        share.entry.isFolder = S_ISDIR(found.status.stx_mode);
        share.entry.path = pathInListing(found);
        return &share;
    }

    std::deque<Share> m_shares;
    Share m_unlisted;
};

class OldFileLister : public Lister {
public:
    using Lister::Lister;

    FolderShare* find(const FoundEntry& entry) override {
        const struct stat status = statOf(entry.status);
        if (leavesOut(entry, status))
            return nullptr;
        if (m_scope.takesOldFile(entry.folder, entry.name, status)) {
            CleanupListing::Entry listed{.inode = status.st_ino,
                                         .bytes = static_cast<std::uint64_t>(status.st_size),
                                         .modified = status.st_mtime,
                                         .isInUse = isUsed(status),
                                         .path = pathInListing(entry)};
            const std::lock_guard lock(m_mutex);
            m_files.push_back(std::move(listed));
        }
        return &m_all;
    }

    void finish(CleanupListing& listing) override {
        std::ranges::sort(m_files, {}, &CleanupListing::Entry::path); // folder by folder
        for (const CleanupListing::Entry& file : m_files)
            listing.bytes += file.bytes;
        listing.entries = std::move(m_files);
    }

private:
    std::vector<CleanupListing::Entry> m_files;
    FolderShare m_all;
};

void list(const Folder& folder, Lister& lister, const CleanupScope& scope, CleanupListing& listing) {
    const auto own = folder.status(".");
    if (!own || scope.keeps(*own))
        return;
    if (!scope.olderThanDays)
        listing.bytes += static_cast<std::uint64_t>(own->st_blocks) * blockBytes;
    FolderShare top;
    walkFolder(lister.pathOfTop(), folder.descriptor(), &top, lister);
    lister.finish(listing);
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

} // namespace

std::int64_t Tools::nanosecondsNow() {
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

std::optional<CleanupListing> Tools::listEntries(const Folder& folder, const std::string& inside,
                                                 const CleanupScope& scope) {
    CleanupListing listing{.device = folder.device(), .inode = folder.inode(), .listed = nanosecondsNow()};
    auto inner = inside.empty() ? std::nullopt : folder.openBelow(inside);
    if (!inside.empty() && !inner)
        return std::nullopt;
    if (scope.excludesWayTo(inside))
        return listing;
    const Folder& listed = inner ? *inner : folder;
    if (scope.olderThanDays) {
        OldFileLister lister(scope, inside);
        list(listed, lister, scope, listing);
    } else {
        EntryLister lister(scope, inside);
        list(listed, lister, scope, listing);
    }
    return listing;
}

void CleanupListing::write(std::ostream& into) const {
    into << device << ':' << inode << ' ' << bytes << ' ' << listed << '\0';
    for (const Entry& entry : entries)
        into << entry.inode << ' ' << entry.bytes << ' ' << entry.modified << ' ' << marksOf(entry) << ' '
             << entry.path << '\0';
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
