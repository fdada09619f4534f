#include "Tools/FolderTrail.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <utility>
#include <vector>

using namespace Tools;

FoundFolder::~FoundFolder() {
    while (parent && parent.use_count() == 1) {
        std::atomic_thread_fence(std::memory_order_acquire); // after what other threads did with it
        FolderPointer above = std::move(parent->parent);
        parent = std::move(above);
    }
}

FolderTrail::FolderTrail(int top, std::size_t maxOpen)
    : m_top(top)
    , m_maxOpen(maxOpen) {}

FolderTrail::~FolderTrail() {
    while (!m_open.empty())
        closeLast();
}

int FolderTrail::enter(const FolderPointer& folder, off_t offset) {
    std::vector<FolderPointer> missing;
    FolderPointer known = folder;
    for (; known && !contains(*known); known = known->parent)
        missing.push_back(known);
    while (!m_open.empty() && m_open.back().folder != known)
        closeLast();
    for (; !missing.empty(); missing.pop_back()) {
        if (!openBelow(missing.back()))
            return -1;
    }
    Open& entered = m_open.back();
    if (entered.offset != offset && lseek(entered.descriptor, offset, SEEK_SET) < 0)
        return -1;
    entered.offset = offset;
    return entered.descriptor;
}

off_t FolderTrail::position() {
    Open& entered = m_open.back();
    entered.offset = lseek(entered.descriptor, 0, SEEK_CUR);
    return entered.offset;
}

bool FolderTrail::contains(const FoundFolder& folder) const {
    if (m_open.empty() || folder.depth < m_open.front().folder->depth)
        return false;
    const std::size_t place = folder.depth - m_open.front().folder->depth;
    return place < m_open.size() && m_open[place].folder.get() == &folder;
}

/// Opens a folder in the last one of the trail, or the first.
bool FolderTrail::openBelow(const FolderPointer& folder) {
    const int parent = m_open.empty() ? m_top : m_open.back().descriptor;
    const char* name = folder->parent ? folder->name.c_str() : ".";
    const int descriptor = openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    m_open.push_back({folder, descriptor});
    if (m_open.size() > m_maxOpen) {
        close(m_open.front().descriptor);
        m_open.pop_front();
    }
    return true;
}

void FolderTrail::closeLast() {
    close(m_open.back().descriptor);
    m_open.pop_back();
}
