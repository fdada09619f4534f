#include "Tools/FolderPieces.h"

#include <iterator>
#include <utility>

using namespace Tools;

void FolderPieces::join() {
    const std::lock_guard lock(m_mutex);
    ++m_threads;
}

void FolderPieces::passOn(std::vector<FolderPiece>& pieces) {
    const auto half = pieces.begin() + static_cast<std::ptrdiff_t>((pieces.size() + 1) / 2);
    {
        const std::lock_guard lock(m_mutex);
        m_pieces.insert(m_pieces.end(), std::move_iterator(pieces.begin()), std::move_iterator(half));
        m_isWanted = false;
    }
    pieces.erase(pieces.begin(), half);
    m_changed.notify_all();
}

std::optional<FolderPiece> FolderPieces::take() {
    std::unique_lock lock(m_mutex);
    ++m_waiting;
    while (m_pieces.empty() && m_waiting < m_threads) {
        m_isWanted = true;
        m_changed.wait(lock);
    }
    if (m_pieces.empty()) { // all of them wait
        m_changed.notify_all();
        return std::nullopt;
    }
    --m_waiting;
    FolderPiece piece = std::move(m_pieces.back());
    m_pieces.pop_back();
    m_isWanted = m_waiting > 0 && m_pieces.empty();
    return piece;
}
