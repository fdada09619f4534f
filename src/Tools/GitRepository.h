#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace Tools {

/// The folders of an index.
struct GitIndex {
    std::unordered_set<std::string> tracked; ///< those of the files, and of other repositories
    std::unordered_set<std::string> whole;   ///< those that stand for all below them

    /// Reads the text of an index of version 2 to 4, whose object names have `hashBytes` bytes. Returns an
    /// empty optional for other text, and for an index that is split over several files.
    static std::optional<GitIndex> parse(std::string_view text, std::size_t hashBytes);
};

/// What git's own files say of a work tree, read without git.
class GitRepository {
public:
    /// `folder` contains ".git", a folder or the file of a linked work tree or submodule.
    explicit GitRepository(std::string folder);

    /// Returns the repository of the nearest folder that has one, from `folder` upwards. Null without any.
    static std::shared_ptr<GitRepository> around(std::string folder);

    const std::string& folder() const { return m_folder; }

    /// Returns whether the index has something at or below a path, which is relative to the work tree. True
    /// as well when the index cannot be understood.
    bool tracks(const std::string& path);
    /// Returns when HEAD last moved, in seconds since 1970, or 0 when that is unknown.
    std::int64_t lastMove() const;

private:
    void readIndex();

    std::string m_folder;
    std::string m_data; ///< the folder with HEAD and the index
    bool m_isRead = false;
    std::optional<GitIndex> m_index;
};

} // namespace Tools
