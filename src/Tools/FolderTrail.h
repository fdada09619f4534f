#pragma once

#include <sys/types.h>

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

namespace Tools {

struct FolderShare;

/// A folder that a walk has found. It keeps its ancestors.
struct FoundFolder {
    std::shared_ptr<FoundFolder> parent; ///< empty for the folder where the walk began
    std::string name;                    ///< in its parent
    ino_t inode = 0;
    std::uint32_t depth = 0;
    bool isBelowMount = false;    ///< it is a mount point or below one that the walk came through
    FolderShare* share = nullptr; ///< to which the walk adds it

    /// Releases a long chain of ancestors one by one: recursion would exhaust the stack.
    ~FoundFolder();
};

using FolderPointer = std::shared_ptr<FoundFolder>;

/// The open folders from one where a walk began down to the one it is in. Opens each relative to its parent,
/// so that a path may have any length, and follows no symlinks. Keeps a limited number of the deepest open.
class FolderTrail {
public:
    /// `top`: the folder where the walk began; it stays open and is not closed here.
    FolderTrail(int top, std::size_t maxOpen);
    ~FolderTrail();
    FolderTrail(const FolderTrail&) = delete;
    FolderTrail& operator=(const FolderTrail&) = delete;

    /// Goes to a folder and returns its descriptor, which is valid until the next call, positioned where
    /// `offset` (0: the start, else linux_dirent64::d_off) says. Returns -1 and sets errno on failure.
    int enter(const FolderPointer& folder, off_t offset);
    /// Returns up to which offset the folder it is in has been read.
    off_t position();

private:
    struct Open {
        FolderPointer folder;
        int descriptor;
        off_t offset = 0;
    };

    bool contains(const FoundFolder& folder) const;
    bool openBelow(const FolderPointer& folder);
    void closeLast();

    int m_top;
    std::size_t m_maxOpen;
    std::deque<Open> m_open; ///< each the parent of the next
};

} // namespace Tools
