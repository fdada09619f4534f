#include "Tools/LinkedFiles.h"

#include <cstdint>
#include <utility>

using namespace Tools;

namespace {

constexpr std::size_t slotsAtFirst = 1024; // a power of two, as all sizes are

} // namespace

LinkedFiles::LinkedFiles(std::size_t bound)
    : m_bound(bound)
    , m_slots(slotsAtFirst) {}

LinkedFiles::Seen LinkedFiles::add(ino_t inode) {
    const ino_t key = inode + 1; // no file system has the last number
    std::size_t slot = slotOf(key);
    if (m_slots[slot] == key)
        return Seen::again;
    if (m_count == m_bound)
        return Seen::unknown;
    if ((m_count + 1) * 4 > m_slots.size() * 3) {
        grow();
        slot = slotOf(key);
    }
    m_slots[slot] = key;
    ++m_count;
    return Seen::first;
}

/// Closes the gap that the file leaves: a later key may have been put off by it.
void LinkedFiles::remove(ino_t inode) {
    const std::size_t mask = m_slots.size() - 1;
    std::size_t gap = slotOf(inode + 1);
    if (m_slots[gap] == 0)
        return;
    --m_count;
    for (std::size_t at = (gap + 1) & mask; m_slots[at] != 0; at = (at + 1) & mask) {
        if (((at - homeOf(m_slots[at])) & mask) >= ((at - gap) & mask))
            m_slots[std::exchange(gap, at)] = m_slots[at];
    }
    m_slots[gap] = 0;
}

/// Returns the first slot that a key may have.
std::size_t LinkedFiles::homeOf(ino_t key) const {
    constexpr std::uint64_t golden = 0x9e3779b97f4a7c15; // spreads the neighbours, see Fibonacci hashing
    return ((key * golden) >> 32) & (m_slots.size() - 1);
}

/// Returns the slot with this key, or the one where it belongs.
std::size_t LinkedFiles::slotOf(ino_t key) const {
    std::size_t slot = homeOf(key);
    while (m_slots[slot] != 0 && m_slots[slot] != key)
        slot = (slot + 1) & (m_slots.size() - 1);
    return slot;
}

void LinkedFiles::grow() {
    const std::vector<ino_t> old = std::exchange(m_slots, std::vector<ino_t>(m_slots.size() * 2));
    for (const ino_t key : old) {
        if (key != 0)
            m_slots[slotOf(key)] = key;
    }
}
