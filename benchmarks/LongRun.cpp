#include "LongRun.h"

#include <dirent.h>
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <utility>

namespace {

constexpr int ticksOfHeap = 50;
constexpr double leastHeapMarginKiB = 256;
constexpr double heapMargin = 0.03;      // of the heap
constexpr double memoryMarginKiB = 2048; // the allocator's reserve varies

double openDescriptors() {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir("/proc/self/fd"), closedir);
    int count = -3; // the folder's own, "." and ".."
    while (folder && readdir(folder.get()))
        ++count;
    return count;
}

std::size_t heapBytes() {
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

/// Reads Pss_Anon of proc(5) `smaps_rollup`, in KiB. Pss grows when another user of the libraries ends.
double ownMemory() {
    std::ifstream rollup("/proc/self/smaps_rollup");
    std::string word;
    double value = 0;
    while (rollup >> word) {
        if (word == "Pss_Anon:" && rollup >> value)
            return value;
    }
    return 0;
}

} // namespace

LongRun::LongRun(int ticks, Figures figures, double descriptorMargin)
    : m_ticks(ticks)
    , m_figures(std::move(figures))
    , m_descriptorMargin(descriptorMargin) {}

void LongRun::ticked() {
    ++m_ticked;
    const int quarter = m_ticks / 4;
    if ((m_ticked - 1) % quarter >= quarter - ticksOfHeap)
        m_minHeapBytes = std::min(m_minHeapBytes.value_or(heapBytes()), heapBytes());
    if (m_ticked % quarter != 0)
        return;
    m_last = look();
    for (const Figure& figure : m_last)
        std::printf("%s_%d %.0f\n", figure.name.c_str(), m_ticked, figure.value);
    std::fflush(stdout);
    if (m_first.empty())
        m_first = m_last;
    m_minHeapBytes.reset();
}

std::vector<LongRun::Figure> LongRun::look() const {
    const double heapKiB = double(*m_minHeapBytes) / 1024;
    std::vector<Figure> result = {
        {.name = "descriptors", .value = openDescriptors(), .margin = m_descriptorMargin},
        {.name = "heap_kib", .value = heapKiB, .margin = std::max(leastHeapMarginKiB, heapMargin * heapKiB)},
        {.name = "own_memory_kib", .value = ownMemory(), .margin = memoryMarginKiB},
    };
    std::ranges::move(m_figures(), std::back_inserter(result));
    return result;
}

bool LongRun::stoodStill() const {
    bool level = isOver();
    for (std::size_t i = 0; i < m_last.size(); ++i) {
        if (m_last[i].value <= m_first[i].value + m_last[i].margin)
            continue;
        level = false;
        std::fprintf(stderr, "%s has grown from %.0f to %.0f\n", m_last[i].name.c_str(), m_first[i].value,
                     m_last[i].value);
    }
    return level;
}
