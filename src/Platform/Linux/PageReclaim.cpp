#include "Platform/Linux/PageReclaim.h"

#include "Platform/Linux/KernelText.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view counter = "pgsteal_";
constexpr std::size_t maxFileSize = 16384; // Linux 6.18 writes 5 KiB

} // namespace

bool PageReclaim::hasWorked() {
    std::array<char, maxFileSize> buffer;
    const auto taken = pagesTaken(m_file.read(buffer));
    const bool isUnchanged = taken && taken == m_taken;
    m_taken = taken;
    return !isUnchanged;
}

std::optional<quint64> PageReclaim::pagesTaken(std::string_view vmstat) {
    std::optional<quint64> sum;
    while (!vmstat.empty()) {
        std::string_view line = vmstat.substr(0, vmstat.find('\n'));
        vmstat.remove_prefix(std::min(line.size() + 1, vmstat.size()));
        if (!line.starts_with(counter))
            continue;
        line.remove_prefix(std::min(line.find(' '), line.size()));
        const auto pages = KernelText::takeNumber(line);
        if (!pages)
            return std::nullopt;
        sum = sum.value_or(0) + *pages;
    }
    return sum;
}
