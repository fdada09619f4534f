#include "Tools/Cleanup.h"

#include "Tools/LinkedFiles.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

using namespace Tools;

namespace {

constexpr std::size_t maxOpenFolders = 128;
constexpr std::size_t maxLinkedFiles = 3 << 20; // in 32 MiB
constexpr std::int64_t nanosecondsASecond = 1'000'000'000;

/// Finds listed entries again.
class Locator {
public:
    struct Found {
        const Folder& parent;
        std::string name;
        struct stat status;
    };

    Locator(const Folder& root, const CleanupScope& scope)
        : m_root(root)
        , m_scope(scope) {}

    /// Returns an empty optional when it is not to be removed. errno is 0 then if it stays, else as of
    /// openat(2) and stat(2).
    std::optional<Found> find(const CleanupListing::Entry& listed) {
        const std::size_t slash = listed.path.rfind('/');
        std::string name = slash == std::string::npos ? listed.path : listed.path.substr(slash + 1);
        const bool isAtTop = slash == std::string::npos;
        const Folder* parent = isAtTop ? &m_root : parentAt(listed.path.substr(0, slash));
        const auto status = parent ? parent->status(name) : std::nullopt;
        if (!status)
            return std::nullopt;
        const bool isSame = status->st_ino == listed.inode && !m_scope.keeps(*status);
        const bool isInScope =
            !m_scope.olderThanDays || m_scope.takesOldFile(parent->descriptor(), name.c_str(), *status);
        errno = 0;
        if (!isSame || !isInScope || (!isAtTop && m_isKept) || m_scope.excludesWayTo(listed.path))
            return std::nullopt;
        return Found{*parent, std::move(name), *status};
    }

private:
    /// Opens the folder, or reuses the last one: entries come folder by folder.
    const Folder* parentAt(const std::string& path) {
        if (!m_parent || path != m_parentPath) {
            m_isKept = keepsWayTo(path);
            m_parent = m_root.openBelow(path);
            m_parentPath = path;
        }
        return m_parent ? &*m_parent : nullptr;
    }

    bool keepsWayTo(const std::string& path) const {
        for (std::size_t end = path.find('/');; end = path.find('/', end + 1)) {
            const auto status = m_root.status(path.substr(0, end));
            if (status && m_scope.keeps(*status))
                return true;
            if (end == std::string::npos)
                return false;
        }
    }

    const Folder& m_root;
    const CleanupScope& m_scope;
    std::optional<Folder> m_parent; ///< of the last entry, if it is below a folder
    std::string m_parentPath;
    bool m_isKept = false; ///< with all in it
};

/// By ascending severity.
enum class Outcome { gone, kept, left };

bool isGone(int error) {
    return error == ENOENT || error == ENOTDIR;
}

class Remover {
public:
    /// `listed`: nanoseconds since 1970.
    Remover(const CleanupScope& scope, std::int64_t listed, const std::function<bool(const Removed&)>& goesOn)
        : m_scope(scope)
        , m_newest(isPast(listed) ? listed : std::numeric_limits<std::int64_t>::max())
        , m_goesOn(goesOn) {}

    /// `path` is relative to the folder of the listing.
    Outcome remove(const Locator::Found& found, const std::string& path) {
        m_path = m_scope.top + '/' + path;
        const Outcome outcome = removeEntry(found.parent, found.name, found.status, false);
        if (m_levels.empty())
            return outcome;
        return removeLevels(found.parent);
    }
    Outcome failed(int error) {
        if (isGone(error))
            return Outcome::gone;
        if (m_firstError == 0)
            m_firstError = error;
        return Outcome::left;
    }

    bool isStopped() const { return m_isStopped; }
    const Removed& removed() const { return m_removed; }
    /// Returns the errno of the first removal that failed.
    int firstError() const { return m_firstError; }

private:
    /// A folder that is being emptied, in the one before it.
    struct Level {
        dev_t device;
        ino_t inode;
        std::optional<Folder> folder; ///< closed meanwhile where the tree is deep
        std::string name;
        std::uint64_t bytes;
        std::vector<std::string> names; ///< still to be removed
        bool hasChanged = false;        ///< since the listing began
        Outcome worst = Outcome::gone;
    };

    static bool isPast(std::int64_t time) { return time > 0 && time <= nanosecondsNow(); }
    static std::uint64_t usage(const struct stat& entry) {
        return static_cast<std::uint64_t>(entry.st_blocks) * blockBytes;
    }
    bool isLater(const timespec& time) const {
        return time.tv_sec * nanosecondsASecond + time.tv_nsec > m_newest;
    }
    /// Returns whether an entry of the last level came, or a file changed, after the listing began. An entry
    /// that comes changes its folder too. A removal of another link of a file changes only the file's status.
    bool cameLater(const struct stat& entry) const {
        const bool isChangedFile = !S_ISDIR(entry.st_mode) && isLater(entry.st_mtim);
        return isLater(entry.st_ctim) && (isChangedFile || m_levels.back().hasChanged);
    }

    /// Removes a file, or makes a level of a folder that is not empty.
    Outcome removeEntry(const Folder& parent, const std::string& name, const struct stat& entry,
                        bool isBelow) {
        m_isStopped = m_isStopped || !m_goesOn(m_removed);
        if (m_isStopped)
            return Outcome::left;
        const bool isFolder = S_ISDIR(entry.st_mode);
        const bool stays = isBelow && cameLater(entry) && !m_unlinked.contains(entry.st_ino);
        if (m_scope.keeps(entry) || (stays && !isFolder))
            return Outcome::kept;
        if (!isFolder)
            return unlinkFile(parent, name, entry);
        if (!stays && unlinkat(parent.descriptor(), name.c_str(), AT_REMOVEDIR) == 0)
            return count(usage(entry));
        if (!stays && errno != ENOTEMPTY && errno != EEXIST)
            return failed(errno);
        return enter(parent, name, entry, stays);
    }

    Outcome unlinkFile(const Folder& parent, const std::string& name, const struct stat& entry) {
        if (unlinkat(parent.descriptor(), name.c_str(), 0) != 0)
            return failed(errno);
        if (entry.st_nlink > 1)
            m_unlinked.add(entry.st_ino); // its other links have changed by that
        else
            m_unlinked.remove(entry.st_ino); // a new file may get its number
        return count(entry.st_nlink > 1 ? 0 : usage(entry));
    }

    Outcome count(std::uint64_t bytes) {
        m_removed.bytes += bytes;
        ++m_removed.entries;
        return Outcome::gone;
    }

    Outcome enter(const Folder& parent, const std::string& name, const struct stat& entry, bool stays) {
        auto folder = parent.openBelow(name);
        if (folder && folder->inode() != entry.st_ino)
            return Outcome::kept; // another one was moved here meanwhile
        auto names = folder ? folder->names() : std::nullopt;
        if (!names)
            return failed(errno);
        m_levels.push_back({folder->device(), folder->inode(), std::move(folder), name, usage(entry),
                            std::move(*names), isLater(entry.st_ctim),
                            stays ? Outcome::kept : Outcome::gone});
        if (m_levels.size() > maxOpenFolders)
            m_levels[m_levels.size() - maxOpenFolders - 1].folder.reset();
        return Outcome::gone; // so far
    }

    /// Removes what is in the last level until there is none. `top` is the folder of the first.
    Outcome removeLevels(const Folder& top) {
        Outcome outcome = Outcome::gone;
        while (!m_levels.empty()) {
            Level& level = m_levels.back();
            if (level.names.empty() || m_isStopped || !level.folder) {
                outcome = leave(top);
                if (!m_levels.empty())
                    m_levels.back().worst = std::max(m_levels.back().worst, outcome);
                continue;
            }
            const std::string name = std::move(level.names.back());
            level.names.pop_back();
            const auto entry = level.folder->status(name);
            if (!entry)
                continue;
            const std::size_t end = m_path.size();
            m_path += '/' + name;
            const std::size_t depth = m_levels.size();
            const bool isExcluded = m_scope.excludes.match(m_path, name.c_str());
            const Outcome one = isExcluded ? Outcome::kept : removeEntry(*level.folder, name, *entry, true);
            if (m_levels.size() > depth)
                continue;
            m_path.resize(end);
            level.worst = std::max(level.worst, one);
        }
        return outcome;
    }

    /// Leaves the last level and removes its folder if nothing is in it.
    Outcome leave(const Folder& top) {
        const Level level = std::move(m_levels.back());
        m_levels.pop_back();
        if (!m_levels.empty()) {
            m_path.resize(m_path.size() - level.name.size() - 1);
            Level& above = m_levels.back();
            if (!above.folder && level.folder)
                above.folder = level.folder->openParent(above.device, above.inode);
            if (!above.folder)
                return failed(level.folder ? errno : EXDEV);
        }
        if (level.worst != Outcome::gone || m_isStopped)
            return m_isStopped ? Outcome::left : level.worst;
        const Folder& parent = m_levels.empty() ? top : *m_levels.back().folder;
        if (unlinkat(parent.descriptor(), level.name.c_str(), AT_REMOVEDIR) == 0)
            return count(level.bytes);
        const bool isFilledAgain = errno == ENOTEMPTY || errno == EEXIST;
        return isFilledAgain ? Outcome::kept : failed(errno);
    }

    const CleanupScope& m_scope;
    const std::int64_t m_newest; ///< nanoseconds since 1970
    const std::function<bool(const Removed&)>& m_goesOn;
    std::vector<Level> m_levels;
    std::string m_path; ///< of the entry being removed
    LinkedFiles m_unlinked{maxLinkedFiles};
    Removed m_removed;
    bool m_isStopped = false;
    int m_firstError = 0;
};

/// Returns the entries folder by folder, each by the inodes, in whose order a disk has what a removal reads.
std::vector<const CleanupListing::Entry*> inOrderOfTheDisk(const CleanupListing& listing) {
    std::vector<const CleanupListing::Entry*> entries;
    for (const CleanupListing::Entry& entry : listing.entries)
        entries.push_back(&entry);
    std::ranges::sort(entries, {}, [](const CleanupListing::Entry* entry) {
        const std::string_view path = entry->path;
        return std::pair(path.substr(0, path.rfind('/') + 1), entry->inode);
    });
    return entries;
}

} // namespace

CleanupListing Tools::checkEntries(const Folder& folder, const CleanupListing& listing,
                                   const CleanupScope& scope) {
    Locator locator(folder, scope);
    CleanupListing checked = listing;
    std::erase_if(checked.entries, [&](const CleanupListing::Entry& entry) { return !locator.find(entry); });
    return checked;
}

Remainder Tools::removeEntries(const Folder& folder, const CleanupListing& listing, const CleanupScope& scope,
                               const std::function<bool(const Removed&)>& goesOn) {
    Locator locator(folder, scope);
    Remover remover(scope, listing.listed, goesOn);
    Remainder remainder;
    for (const CleanupListing::Entry* each : inOrderOfTheDisk(listing)) {
        const CleanupListing::Entry& entry = *each;
        const auto found = locator.find(entry);
        const int error = errno;
        Outcome outcome = Outcome::kept;
        if (found)
            outcome = remover.remove(*found, entry.path);
        else if (error != 0)
            outcome = remover.failed(error);
        if (remover.isStopped())
            break;
        if (outcome == Outcome::left && ++remainder.count == 1) {
            remainder.first = entry.path;
            remainder.error = remover.firstError();
        }
    }
    remainder.removed = remover.removed();
    remainder.isStopped = remover.isStopped();
    return remainder;
}
