#pragma once

#include "Tools/FolderTrail.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <vector>

namespace Tools {

/// A folder of which the entries from `offset` (as of FolderTrail::enter) on are to be read.
struct FolderPiece {
    FolderPointer folder;
    off_t offset = 0;
};

/// What the threads of a walk have left to read and share. Each has pieces of its own, and passes some on
/// when another has none.
class FolderPieces {
public:
    /// Announces that the calling thread will take pieces.
    void join();

    /// Whether a thread waits and nothing is here for it.
    bool isWanted() const { return m_isWanted.load(std::memory_order_relaxed); }
    /// Moves the older half of `pieces` here. They are the largest as a rule, being higher up in the tree.
    void passOn(std::vector<FolderPiece>& pieces);
    /// Waits for a piece. Returns an empty optional when no thread has any.
    std::optional<FolderPiece> take();

private:
    std::atomic<bool> m_isWanted = false;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<FolderPiece> m_pieces;
    unsigned m_threads = 0;
    unsigned m_waiting = 0;
};

} // namespace Tools
