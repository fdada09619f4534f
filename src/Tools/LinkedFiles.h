#pragma once

#include <sys/types.h>

#include <cstddef>
#include <vector>

namespace Tools {

/// The files with several links that have been seen, all of one file system. Takes 11 to 22 bytes a file, and
/// half as much again while it grows.
class LinkedFiles {
public:
    enum class Seen { first, again, unknown };

    /// `bound` is the number of files it can hold.
    explicit LinkedFiles(std::size_t bound);

    /// Remembers a file. `unknown`: it is full, and this file is not among those it holds.
    Seen add(ino_t inode);
    void remove(ino_t inode);
    bool contains(ino_t inode) const { return m_slots[slotOf(inode + 1)] != 0; }

private:
    std::size_t homeOf(ino_t key) const;
    std::size_t slotOf(ino_t key) const;
    void grow();

    std::size_t m_bound;
    std::size_t m_count = 0;
    std::vector<ino_t> m_slots; ///< 0: free; at most three quarters are taken
};

} // namespace Tools
