#include "Tools/Cleanup.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

using namespace Tools;

namespace {

constexpr int rounds = 3; // for a folder that others write to meanwhile

/// By ascending severity.
enum class Outcome { gone, kept, left };

class Remover {
public:
    Remover(const Folder& root, const CleanupScope& scope)
        : m_root(root)
        , m_scope(scope) {}

    Outcome remove(const CleanupListing::Entry& listed) {
        const std::size_t slash = listed.path.rfind('/');
        const std::string name = slash == std::string::npos ? listed.path : listed.path.substr(slash + 1);
        const Folder* parent = slash == std::string::npos ? &m_root : parentAt(listed.path.substr(0, slash));
        if (!parent)
            return errno == ENOTDIR ? Outcome::gone : goneOrLeft();
        const auto entry = parent->status(name);
        if (!entry)
            return goneOrLeft();
        if (entry->st_ino != listed.inode)
            return Outcome::kept;
        if (m_scope.olderThanDays && !m_scope.takesOldFile(*parent, name, *entry))
            return Outcome::kept;
        return removeEntry(*parent, name, *entry, 0);
    }

    /// Returns the errno of the first removal that failed.
    int firstError() const { return m_firstError; }

private:
    /// Maps the errno of a failed system call.
    Outcome goneOrLeft() {
        if (errno == ENOENT)
            return Outcome::gone;
        if (m_firstError == 0)
            m_firstError = errno;
        return Outcome::left;
    }

    /// Opens the folder, or reuses the last one: entries come folder by folder.
    const Folder* parentAt(const std::string& path) {
        if (!m_parent || path != m_parentPath) {
            m_parent = m_root.openBelow(path);
            m_parentPath = path;
        }
        return m_parent ? &*m_parent : nullptr;
    }

    Outcome removeEntry(const Folder& parent, const std::string& name, const struct stat& entry, int depth) {
        if (m_scope.keeps(entry))
            return Outcome::kept;
        if (S_ISDIR(entry.st_mode))
            return removeFolder(parent, name, depth);
        return unlinkat(parent.descriptor(), name.c_str(), 0) == 0 ? Outcome::gone : goneOrLeft();
    }

    Outcome removeFolder(const Folder& parent, const std::string& name, int depth) {
        Outcome outcome = Outcome::gone;
        for (int round = 0; round < rounds; ++round) {
            if (unlinkat(parent.descriptor(), name.c_str(), AT_REMOVEDIR) == 0)
                return Outcome::gone;
            if (errno != ENOTEMPTY && errno != EEXIST)
                return goneOrLeft();
            errno = ELOOP; // for a folder that is nested too deep
            const auto folder = depth < maxFolderDepth ? parent.openBelow(name) : std::nullopt;
            if (!folder)
                return goneOrLeft();
            outcome = removeContent(*folder, depth + 1);
            if (outcome != Outcome::gone)
                return outcome;
        }
        return unlinkat(parent.descriptor(), name.c_str(), AT_REMOVEDIR) == 0 ? Outcome::gone : goneOrLeft();
    }

    Outcome removeContent(const Folder& folder, int depth) {
        const auto names = folder.names();
        if (!names)
            return goneOrLeft();
        Outcome worst = Outcome::gone;
        for (const std::string& name : *names) {
            const auto entry = folder.status(name);
            if (entry)
                worst = std::max(worst, removeEntry(folder, name, *entry, depth));
        }
        return worst;
    }

    const Folder& m_root;
    const CleanupScope& m_scope;
    std::optional<Folder> m_parent;
    std::string m_parentPath;
    int m_firstError = 0;
};

} // namespace

Remainder Tools::removeEntries(const Folder& folder, const CleanupListing& listing,
                               const CleanupScope& scope) {
    Remover remover(folder, scope);
    Remainder remainder;
    for (const CleanupListing::Entry& entry : listing.entries) {
        if (remover.remove(entry) != Outcome::left)
            continue;
        if (++remainder.count == 1) {
            remainder.first = entry.path;
            remainder.error = remover.firstError();
        }
    }
    return remainder;
}
